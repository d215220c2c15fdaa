# The package for Debian, made by packaging/make-deb.sh of what is installed for the whole system.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cmped)
set(CPACK_PACKAGE_VENDOR "The Campaign Editor's Makers")
set(CPACK_PACKAGE_CONTACT "The Campaign Editor's Makers <makers@cmped.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "campaign editor for the game Eldmark Saga")
set(CPACK_COMPONENT_SYSTEM_DESCRIPTION
"Makes campaigns for the turn-based strategy game Eldmark Saga with its
add-on Ravn: chains of scenarios on a map with clickable regions, with their
prologues, epilogues and starting bonuses, and with rules for the heroes who
go on from one scenario to the next.
.
It opens, makes and saves campaign files, and keeps every byte of the maps
in them. The command line tool cmped-cli does the same for scripts and
translators. The game itself is not part of the package; its files are
needed.")

set(CPACK_COMPONENTS_ALL system)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_SYSTEM_PACKAGE_NAME cmped)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# Loaded by name while the editor runs, so that nothing is seen of it in the programs.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libsdl2-mixer-2.0-0)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS hicolor-icon-theme)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
