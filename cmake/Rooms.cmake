# The core is built as one static library per room of src/. A room's headers are reachable
# only through its own include root, which holds a single link named after the room: a file
# that includes a header of a room its target does not link cannot compile.
set(VORLANE_ROOM_ROOTS ${CMAKE_BINARY_DIR}/rooms)

# vorlane_room(NAME room [EXCLUDE regex] [USES room...] [LIBS library...])
# Makes the library `vorlane_<room>` from src/<room>/*.cpp (less the files matching EXCLUDE),
# linked to the rooms it uses.
function(vorlane_room)
    cmake_parse_arguments(ROOM "" "NAME;EXCLUDE" "USES;LIBS" ${ARGN})
    set(dir ${CMAKE_SOURCE_DIR}/src/${ROOM_NAME})
    set(root ${VORLANE_ROOM_ROOTS}/${ROOM_NAME})
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${dir} ${root}/${ROOM_NAME} SYMBOLIC)
    file(GLOB sources CONFIGURE_DEPENDS ${dir}/*.cpp)
    if(ROOM_EXCLUDE)
        list(FILTER sources EXCLUDE REGEX ${ROOM_EXCLUDE})
    endif()
    add_library(vorlane_${ROOM_NAME} STATIC ${sources})
    target_include_directories(vorlane_${ROOM_NAME} PUBLIC ${root})
    list(TRANSFORM ROOM_USES PREPEND vorlane_)
    target_link_libraries(vorlane_${ROOM_NAME} PUBLIC ${ROOM_USES} ${ROOM_LIBS}
        PRIVATE vorlane_warnings)
    set(VORLANE_ROOM_SOURCES ${sources} PARENT_SCOPE)
endfunction()
