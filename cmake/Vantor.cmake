# What every target of the project shares: warnings, sanitizers, and the one way to declare a library or a test.

# A compiler cache is used where there is one, so that a second checkout or configuration does not begin at nothing.
find_program(VANTOR_CCACHE ccache)
if(VANTOR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${VANTOR_CCACHE})
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
if(VANTOR_BUILD_FUZZ)
    # Every engine library carries the coverage counters that the harnesses steer by.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# vantor_library(name SOURCES... [LINK libs...]): a static library of one room, included as "room/Header.h".
function(vantor_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE vantor_options)
endfunction()

# vantor_folders(sources...): defines the folders of sources and build for those that ask for them, and for no others:
# an absolute path on the command line keeps the compiler cache from serving another checkout.
function(vantor_folders)
    foreach(source IN LISTS ARGN)
        file(STRINGS ${source} uses REGEX "VANTOR_(SOURCE|BINARY)_DIR|decode/(Movie)?Fixtures.h" LIMIT_COUNT 1)
        if(uses)
            set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS
                VANTOR_SOURCE_DIR="${CMAKE_SOURCE_DIR}" VANTOR_BINARY_DIR="${CMAKE_BINARY_DIR}")
        endif()
    endforeach()
endfunction()

# vantor_test(name SOURCES... LINK libs... [ENV name=value...] [TIMEOUT seconds]): a GoogleTest program, one
# ctest entry a test. Tests find their data through compile definitions, never through the working directory.
function(vantor_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LINK;ENV")
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    vantor_folders(${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest GTest::gmock GTest::gtest_main vantor_options)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT ${arg_TIMEOUT} ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${arg_ENV}")
endfunction()
