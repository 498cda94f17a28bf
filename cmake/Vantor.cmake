# What every target of the project shares: warnings, sanitizers, and the one way to declare a library or a test.

# A compiler cache is used where there is one, so that a second checkout or configuration does not begin at nothing.
find_program(VANTOR_CCACHE ccache)
if(VANTOR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros ${VANTOR_CCACHE})
endif()

add_library(vantor_options INTERFACE)
target_compile_options(vantor_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(VANTOR_WERROR)
    target_compile_options(vantor_options INTERFACE -Werror)
endif()
include(${CMAKE_CURRENT_LIST_DIR}/Hardening.cmake)
if(VANTOR_SANITIZE)
    add_compile_options(-fsanitize=${VANTOR_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VANTOR_SANITIZE})
    if(VANTOR_SANITIZE MATCHES "undefined")
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
endif()
# Names and lines for a stack trace; what a debugger wants beyond that takes a fifth longer and is Debug's.
add_compile_options($<$<CONFIG:RelWithDebInfo>:-g1>)
# Most of a test's code runs once, so compiling it well costs more than it brings; checks that need an optimizing
# compiler go with that. Programs and libraries share parsed headers, so both are compiled as libraries are.
add_library(vantor_test_options INTERFACE)
set(vantor_test_level -O0)
if(VANTOR_SANITIZE)
    # There what runs costs more than what compiles.
    set(vantor_test_level -O1)
endif()
target_compile_options(vantor_test_options INTERFACE -fPIC
    $<$<CONFIG:RelWithDebInfo>:-U_FORTIFY_SOURCE> $<$<CONFIG:RelWithDebInfo>:${vantor_test_level}>)
if(VANTOR_BUILD_FUZZ)
    # Every engine library carries the coverage counters that the harnesses steer by.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# vantor_share_headers(name kind): compiles name's files with the headers of cmake/precompiled/kind.h parsed before.
# clang's own form of that needs other flags; its builds are few and go without.
function(vantor_share_headers name kind)
    if(VANTOR_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_precompile_headers(${name} REUSE_FROM vantor_precompiled_${kind})
    endif()
endfunction()

# Where everything is built at once, programs are linked by the quickest linker there is.
find_program(VANTOR_LLD ld.lld)
if(VANTOR_UNITY AND VANTOR_LLD AND NOT VANTOR_SANITIZE)
    add_link_options(-fuse-ld=lld)
endif()

# vantor_join_files(name): compiles the files of name many at a time, where that is wanted: each time the shared headers
# are taken up again costs more than a file does. Names in their nameless namespaces must then differ within name.
# Half as many of a program's, so that the last one is not compiled alone.
function(vantor_join_files name)
    if(VANTOR_UNITY)
        set(many 40)
        get_target_property(type ${name} TYPE)
        if(type STREQUAL "EXECUTABLE")
            set(many 20)
        endif()
        set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${many})
    endif()
endfunction()

# vantor_library(name SOURCES... [LINK libs...] [HEADERS kind] [APART]): a static library of one room, included as
# "room/Header.h"; kind is Standard, Engine (if nothing is said) or Window. APART: its files are never joined.
function(vantor_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "APART" "HEADERS" "SOURCES;LINK")
    if(NOT arg_HEADERS)
        set(arg_HEADERS Engine)
    endif()
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE vantor_options)
    vantor_share_headers(${name} ${arg_HEADERS})
    if(NOT arg_APART)
        vantor_join_files(${name})
    endif()
endfunction()

# vantor_folders(name sources...): defines the folders of sources and build for those of name's sources that ask for
# them, and for no others: an absolute path on the command line keeps the compiler cache from serving another checkout.
# Joined files have one command line, and paths of the checkout in them anyway.
function(vantor_folders name)
    set(folders VANTOR_SOURCE_DIR="${CMAKE_SOURCE_DIR}" VANTOR_BINARY_DIR="${CMAKE_BINARY_DIR}")
    if(VANTOR_UNITY)
        target_compile_definitions(${name} PRIVATE ${folders})
        return()
    endif()
    foreach(source IN LISTS ARGN)
        file(STRINGS ${source} uses REGEX "VANTOR_(SOURCE|BINARY)_DIR|decode/(Movie)?Fixtures.h" LIMIT_COUNT 1)
        if(uses)
            set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS ${folders})
        endif()
    endforeach()
endfunction()

# vantor_test_library(name SOURCES... LINK libs... [HEADERS kind]): what several test programs share.
function(vantor_test_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADERS" "SOURCES;LINK")
    if(NOT arg_HEADERS)
        set(arg_HEADERS Engine)
    endif()
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    vantor_folders(${name} ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC ${arg_LINK} GTest::gtest PRIVATE vantor_options vantor_test_options)
    vantor_share_headers(${name} ${arg_HEADERS}Tests)
    vantor_join_files(${name})
endfunction()

# vantor_hot(sources...): test code that loops over much data, compiled as the product is.
function(vantor_hot)
    set_source_files_properties(${ARGN} PROPERTIES
        COMPILE_OPTIONS $<$<CONFIG:RelWithDebInfo>:-O2> SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# vantor_test(name SOURCES... LINK libs... [HEADERS kind] [APART] [FIRST] [ENV name=value...]): a GoogleTest program, one
# ctest entry a test; HEADERS and APART as for a library. FIRST: its tests take long, so they begin before the others.
# Tests find their data through compile definitions, never through the working directory. The time limit is for what
# hangs: on a busy machine everything takes thirty times as long.
function(vantor_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "APART;FIRST" "HEADERS" "SOURCES;LINK;ENV")
    if(NOT arg_HEADERS)
        set(arg_HEADERS Engine)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    vantor_folders(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest GTest::gmock GTest::gtest_main vantor_options
        vantor_test_options)
    vantor_share_headers(${name} ${arg_HEADERS}Tests)
    if(NOT arg_APART)
        vantor_join_files(${name})
        # Tests of nameless fixtures: in a file that is joined, gcc takes them for a header's.
        if(VANTOR_UNITY AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
        endif()
    endif()
    set(cost 0)
    if(arg_FIRST)
        set(cost 60)
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 300
        PROPERTIES TIMEOUT 1800 COST ${cost} ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${arg_ENV}")
endfunction()
