# The Debian package: cpack -G DEB packs what the install rules install (scripts/package).
# Its dependencies come from the binaries themselves, through dpkg-shlibdeps.

# The package's version is the changelog's latest entry, which must name this version.
file(STRINGS packaging/changelog VORLANE_CHANGELOG_TOP LIMIT_COUNT 1)
if(NOT VORLANE_CHANGELOG_TOP MATCHES "^vorlane \\(([^-]+)-([0-9]+)\\) ")
    message(FATAL_ERROR "packaging/changelog: the first line does not read "
        "\"vorlane (VERSION-REVISION) ...\": ${VORLANE_CHANGELOG_TOP}")
endif()
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "packaging/changelog: its latest entry is version ${CMAKE_MATCH_1}, "
        "the program's is ${PROJECT_VERSION}: add an entry for ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})

set(staged ${CMAKE_BINARY_DIR}/install)
add_custom_command(OUTPUT ${staged}/changelog.Debian.gz
    COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/packaging/changelog > ${staged}/changelog.Debian.gz
    DEPENDS ${CMAKE_SOURCE_DIR}/packaging/changelog
    COMMENT "Compressing the package's changelog")
add_custom_target(vorlane_changelog ALL DEPENDS ${staged}/changelog.Debian.gz)
install(FILES ${staged}/changelog.Debian.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vorlane)
set(CPACK_PACKAGE_VENDOR "The Vorlane developers")
set(CPACK_PACKAGE_CONTACT "${VORLANE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for the data of Korrin 2D engine games")
# The long description; cpack puts the summary before it as its first line.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Vorlane is a desktop editor for the data of games made with the Korrin 2D
engine: buttons, images, cursors, texts, fonts, music tracks, sound effects,
sprites with their animations and scenes with their layers, plus the
application's window, screen, sound, splash-screen and log settings. A project
is saved as one project file, from which Vorlane generates the files the engine
reads at start-up.

The package also holds vorlane-cli, which checks project files and generates
the engine's files without a display, for build pipelines.")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${VORLANE_HOMEPAGE}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The desktop finds a new entry and icon by itself through dpkg triggers; no scripts needed.
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
include(CPack)
