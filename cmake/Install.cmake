# What is installed, in two layouts. Into a game's folder, where everything stands beside each other:
#
#   cmake --install BUILD --prefix GAMEFOLDER
#
# and for the whole system, where the programs are told where the game is; nobody gets that unasked:
#
#   cmake --install BUILD --prefix /usr --component system

# A game's folder.
install(TARGETS cmped_launcher cmped_cli cmped_library
    RUNTIME DESTINATION . COMPONENT game
    LIBRARY DESTINATION . COMPONENT game)
install(FILES ${CMPED_TRANSLATIONS} DESTINATION Ravn_Data COMPONENT game)
install(FILES ${CMPED_QT_TRANSLATIONS}/qtbase_ru.qm
    DESTINATION Ravn_Data COMPONENT game OPTIONAL)

# The whole system.
function(cmped_install_for_system destination)
    install(FILES ${ARGN} DESTINATION ${destination} COMPONENT system EXCLUDE_FROM_ALL)
endfunction()

# cmped_compress(SOURCE VARIABLE): a file packed as Debian wants manuals and change logs; its place
# is left in the variable, and the build makes it.
function(cmped_compress source variable)
    get_filename_component(name ${source} NAME)
    set(packed ${CMPED_SYSTEM_FILES_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${packed}
        COMMAND sh -c "gzip -9 -n -c \"$1\" >\"$2\"" sh ${source} ${packed}
        DEPENDS ${source}
        VERBATIM)
    set(${variable} ${packed} PARENT_SCOPE)
endfunction()

set(CMPED_SYSTEM_FILES_DIR ${PROJECT_BINARY_DIR}/system)
file(MAKE_DIRECTORY ${CMPED_SYSTEM_FILES_DIR})
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(manual ${PROJECT_SOURCE_DIR}/docs)

cmped_compress(${packaging}/debian/changelog CMPED_CHANGELOG)
foreach(page cmped.1 cmped-cli.1)
    cmped_compress(${manual}/man/${page} packed)
    list(APPEND CMPED_MAN_PAGES ${packed})
endforeach()
add_custom_target(cmped_system_files ALL
    DEPENDS ${CMPED_CHANGELOG} ${CMPED_MAN_PAGES})
add_dependencies(cmped_system_files
    cmped_icons cmped_translations cmped_launcher cmped_cli cmped_library)

install(TARGETS cmped_launcher cmped_cli
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT system EXCLUDE_FROM_ALL)
install(TARGETS cmped_library
    LIBRARY DESTINATION ${CMPED_LIBRARY_DIR} COMPONENT system EXCLUDE_FROM_ALL)
install(FILES ${CMPED_QT_TRANSLATIONS}/qtbase_ru.qm
    DESTINATION ${CMPED_DATA_DIR} COMPONENT system EXCLUDE_FROM_ALL OPTIONAL)
install(DIRECTORY ${CMPED_ICONS_DIR}/
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons COMPONENT system EXCLUDE_FROM_ALL)
install(DIRECTORY ${manual}/manual
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system EXCLUDE_FROM_ALL)

set(share ${CMAKE_INSTALL_DATADIR})
cmped_install_for_system(${CMPED_DATA_DIR} ${CMPED_TRANSLATIONS})
cmped_install_for_system(${share}/applications ${packaging}/desktop/cmped.desktop)
cmped_install_for_system(${share}/mime/packages ${packaging}/desktop/cmped.xml)
cmped_install_for_system(${share}/metainfo ${packaging}/desktop/cmped.metainfo.xml)
cmped_install_for_system(${share}/thumbnailers ${packaging}/desktop/cmped.thumbnailer)
cmped_install_for_system(${share}/zsh/vendor-completions
    ${packaging}/completions/_cmped
    ${packaging}/completions/_cmped-cli)
cmped_install_for_system(${CMAKE_INSTALL_MANDIR}/man1 ${CMPED_MAN_PAGES})
cmped_install_for_system(${CMAKE_INSTALL_DOCDIR}
    ${manual}/manual.md
    ${manual}/manual.ru.md
    ${manual}/for-translators.md
    ${packaging}/debian/copyright
    ${CMPED_CHANGELOG})

# bash looks a program's completion up by the program's name alone.
foreach(program cmped cmped-cli)
    install(FILES ${packaging}/completions/${program}.bash RENAME ${program}
        DESTINATION ${share}/bash-completion/completions COMPONENT system EXCLUDE_FROM_ALL)
endforeach()
