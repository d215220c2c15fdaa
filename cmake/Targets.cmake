# Qt's headers, compiled once for all that share a set of options. Whether each file includes what it
# needs is seen by scripts/lint.sh, which goes without them.
function(cmped_qt_headers name header library)
    add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/qt_headers.cpp)
    target_link_libraries(${name} PRIVATE cmped_options ${library})
    target_precompile_headers(${name} PRIVATE ${header})
endfunction()
cmped_qt_headers(cmped_core_headers <QtCore> Qt5::Core)
cmped_qt_headers(cmped_widgets_headers <QtWidgets> Qt5::Widgets)

# cmped_uses_qt(NAME LINKS ...): has a target use them as far as it links Qt.
function(cmped_uses_qt name)
    if("${ARGN}" MATCHES "cmped_(dialogs|scenario|widgets)|Qt5::Widgets")
        target_precompile_headers(${name} REUSE_FROM cmped_widgets_headers)
    elseif("${ARGN}" MATCHES "cmped|Qt5")
        target_precompile_headers(${name} REUSE_FROM cmped_core_headers)
    endif()
endfunction()

# cmped_room(NAME SOURCES ... LINKS ...): one folder of the house, a static library. Only those with
# windows have something for moc, uic and rcc.
function(cmped_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC cmped_options ${ROOM_LINKS})
    cmped_uses_qt(${name} ${ROOM_LINKS})
    if("${ROOM_LINKS}" MATCHES "Qt5::Widgets")
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    endif()
endfunction()

# What LeakSanitizer is told by tests that show windows: which leaks are not ours.
set(CMPED_LEAK_OPTIONS
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")

# cmped_test(NAME [TIMEOUT SECONDS] LINKS ...): one Qt Test program, NAME.cpp of the calling
# folder, run by CTest on the offscreen platform. It has one class that moc has to see, so moc is called for it alone:
# a search for more costs as much as compiling. The sample game's folder is CMPED_SAMPLE_GAME in
# its environment; what it writes into the user's data folder stays in the build.
function(cmped_test name)
    cmake_parse_arguments(TEST "" "TIMEOUT" "LINKS" ${ARGN})
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 300)
    endif()
    set(moc_output ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
    qt5_generate_moc(${name}.cpp ${moc_output})
    add_executable(${name} ${name}.cpp ${moc_output})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    target_link_libraries(${name} PRIVATE cmped_test_support ${TEST_LINKS} Qt5::Test)
    # A test's main() knows windows only if the precompiled headers do.
    if(TEST_LINKS MATCHES "cmped_(dialogs|scenario|shell|widget)|manual_scenes|Qt5::Widgets")
        target_precompile_headers(${name} REUSE_FROM cmped_widget_test_support)
    else()
        target_precompile_headers(${name} REUSE_FROM cmped_test_support)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${TEST_TIMEOUT}
        COST ${TEST_TIMEOUT} # the longest first
        ENVIRONMENT "${CMPED_LEAK_OPTIONS};QT_QPA_PLATFORM=offscreen;SDL_AUDIODRIVER=dummy;LC_ALL=C.UTF-8;XDG_DATA_HOME=${PROJECT_BINARY_DIR}/test-data/${name};CMPED_SAMPLE_GAME=${PROJECT_BINARY_DIR}/sample-game;CMPED_BIN=${PROJECT_BINARY_DIR}/bin")
endfunction()
