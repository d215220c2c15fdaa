# How everything of ours is compiled.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOUIC_SEARCH_PATHS ${PROJECT_SOURCE_DIR}/forms)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

option(CMPED_WERROR "Treat warnings of our own code as errors" ON)
option(CMPED_SANITIZERS "Build with AddressSanitizer and UBSan" OFF)

# ccache takes precompiled headers only if it is told to trust their macros and times. It learns
# what a source includes from the compiler, so that nothing is preprocessed twice for it.
find_program(CMPED_CCACHE ccache)
if(CMPED_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_DEPEND=1
        ${CMPED_CCACHE})
endif()

# Flags for our own code; what moc, uic and rcc make is compiled with them too and passes.
add_library(cmped_options INTERFACE)
target_compile_options(cmped_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(CMPED_WERROR)
    target_compile_options(cmped_options INTERFACE -Werror)
endif()
target_compile_definitions(cmped_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS QT_NO_FOREACH
    CMPED_VERSION="${PROJECT_VERSION}")
target_include_directories(cmped_options INTERFACE ${PROJECT_SOURCE_DIR})

if(CMPED_SANITIZERS)
    # Optimised a little and with line numbers only: instrumented code compiles slowly as it is.
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1 -DNDEBUG")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# Hundreds of test programs are linked, which lld does in a quarter of the time.
find_program(CMPED_LLD ld.lld)
if(CMPED_LLD)
    add_link_options(-fuse-ld=lld)
endif()

option(CMPED_FUZZ "Drive the fuzz targets by libFuzzer (clang only)" OFF)
if(CMPED_FUZZ)
    # Noting every comparison takes half of the time, and the words that are compared with are in the
    # dictionaries.
    add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp -O2)
endif()
