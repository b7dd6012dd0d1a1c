# Where an installed Vorlane puts its files, and the files a desktop needs to list it: the
# desktop entry, the icon in every size, the AppStream metainfo, the manual page and the user
# manual. cpack -G DEB (cmake/Package.cmake) packs exactly what these rules install.

# The desktop knows the program by this name: its desktop entry, icon and metainfo.
set(VORLANE_APP_ID org.vorlane.Vorlane)
set(VORLANE_HOMEPAGE "https://vorlane.org" CACHE STRING "The program's home page, for its metadata")
set(VORLANE_MAINTAINER "The Vorlane developers <developers@vorlane.org>" CACHE STRING
    "Who answers for the package")
# No licence has been chosen yet: the metadata and the copyright file say so.
set(VORLANE_LICENSE LicenseRef-proprietary)
# The date of the current release, as the manual page and the metainfo give it.
set(VORLANE_RELEASE_DATE 2026-11-22)

include(GNUInstallDirs)
# Debian names the documentation folder after the package, in lower case.
if(CMAKE_INSTALL_DOCDIR STREQUAL "${CMAKE_INSTALL_DATAROOTDIR}/doc/${PROJECT_NAME}")
    set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/vorlane)
    set(CMAKE_INSTALL_FULL_DOCDIR ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DOCDIR})
endif()
set(VORLANE_INSTALLED_MANUAL ${CMAKE_INSTALL_FULL_DOCDIR}/manual/index.html)
# The editor finds its installed manual from its own folder, wherever the prefix lies.
file(RELATIVE_PATH VORLANE_MANUAL_FROM_BINDIR
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DOCDIR}/manual)

set(staged ${CMAKE_BINARY_DIR}/install)
file(MAKE_DIRECTORY ${staged})

install(TARGETS vorlane-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# The manual pages, with the version of this build, compressed as Debian keeps them.
set(man_pages vorlane-cli)
if(TARGET vorlane)
    list(APPEND man_pages vorlane)
endif()
set(man_outputs)
foreach(page IN LISTS man_pages)
    configure_file(data/man/${page}.1.in ${staged}/${page}.1 @ONLY)
    add_custom_command(OUTPUT ${staged}/${page}.1.gz
        COMMAND gzip -9nc ${page}.1 > ${page}.1.gz
        DEPENDS ${staged}/${page}.1
        WORKING_DIRECTORY ${staged}
        COMMENT "Compressing the manual page of ${page}")
    list(APPEND man_outputs ${staged}/${page}.1.gz)
    install(FILES ${staged}/${page}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
add_custom_target(vorlane_man ALL DEPENDS ${man_outputs})

# The user manual, every page and picture in its folders: pages come and go with the program.
# The pages show their pictures as ../images/NAME; the pictures live under manual/images, and
# doc/vorlane/images points there, so the pages' links hold unchanged.
install(DIRECTORY docs/manual/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/manual)
install(DIRECTORY docs/images/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/manual/images)
file(CREATE_LINK manual/images ${staged}/images SYMBOLIC)
install(FILES ${staged}/images DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The JSON Schema of vorlane-cli export's output, for editors and scripts that check it.
install(FILES docs/project.schema.json DESTINATION ${CMAKE_INSTALL_DOCDIR})
# Registers the manual with the system's documentation browsers.
configure_file(data/doc-base/vorlane-manual.in ${staged}/vorlane-manual @ONLY)
install(FILES ${staged}/vorlane-manual DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc-base)

if(TARGET vorlane)
    install(TARGETS vorlane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    target_compile_definitions(vorlane PRIVATE VORLANE_APP_ID="${VORLANE_APP_ID}")
    install(FILES data/desktop/${VORLANE_APP_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
    configure_file(data/desktop/${VORLANE_APP_ID}.metainfo.xml.in
        ${staged}/${VORLANE_APP_ID}.metainfo.xml @ONLY)
    install(FILES ${staged}/${VORLANE_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo)

    # The icon: drawn once as SVG, rendered for the sizes desktops ask for.
    set(icon_svg ${CMAKE_SOURCE_DIR}/data/icons/${VORLANE_APP_ID}.svg)
    find_program(VORLANE_RSVG_CONVERT rsvg-convert)
    if(NOT VORLANE_RSVG_CONVERT)
        message(FATAL_ERROR "rsvg-convert renders the program's icon: install librsvg2-bin")
    endif()
    set(icon_pngs)
    foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
        set(png ${staged}/icons/${size}x${size}/${VORLANE_APP_ID}.png)
        add_custom_command(OUTPUT ${png}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${staged}/icons/${size}x${size}
            COMMAND ${VORLANE_RSVG_CONVERT} -w ${size} -h ${size} -o ${png} ${icon_svg}
            DEPENDS ${icon_svg}
            COMMENT "Rendering the ${size} px icon")
        list(APPEND icon_pngs ${png})
        install(FILES ${png}
            DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/${size}x${size}/apps)
    endforeach()
    add_custom_target(vorlane_icons ALL DEPENDS ${icon_pngs})
    install(FILES ${icon_svg} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps)
    # The window and the about box show the same picture, from the editor's resources.
    set(VORLANE_ICON_FILE ${staged}/icons/64x64/${VORLANE_APP_ID}.png)
    configure_file(data/icons/vorlane.qrc.in ${staged}/vorlane.qrc @ONLY)
    target_sources(vorlane_ui PRIVATE ${staged}/vorlane.qrc ${VORLANE_ICON_FILE})
    # Online Help: the installed manual, or the source tree's when run from this build folder.
    target_compile_definitions(vorlane_ui PRIVATE
        VORLANE_MANUAL_FROM_BINDIR="${VORLANE_MANUAL_FROM_BINDIR}"
        VORLANE_BUILD_DIR="${CMAKE_BINARY_DIR}")
endif()
