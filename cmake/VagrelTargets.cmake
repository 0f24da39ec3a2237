# SPDX-License-Identifier: MIT
# How targets of this project are made: vagrel_library for a leaf, vagrel_part for a folder of the engine, vagrel_test for
# the tests of a folder.

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
find_program(VAGREL_CCACHE ccache)
if(VAGREL_CCACHE AND PROJECT_IS_TOP_LEVEL)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime
                                    ${VAGREL_CCACHE})
endif()

find_package(Threads REQUIRED)

# How this project is compiled. None of it reaches who links the library: vagrel_settings takes it in while building only.
add_library(vagrel_build INTERFACE)
# Fused multiply-add would change results between machines.
target_compile_options(vagrel_build INTERFACE -ffp-contract=off -fvisibility-inlines-hidden)

add_library(vagrel_strict INTERFACE)
target_compile_options(vagrel_strict INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-qual
                                               $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
                                               # False alarms of g++ 12 on short strings at -O3.
                                               $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                                               $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>
                                               $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overread>
                                               $<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds>
                                               $<$<BOOL:${VAGREL_WERROR}>:-Werror>)
if(VAGREL_SANITIZE)
    target_compile_options(vagrel_build INTERFACE -fsanitize=${VAGREL_SANITIZE} -fno-omit-frame-pointer
                                                  -fno-sanitize-recover=undefined)
    target_link_options(vagrel_build INTERFACE -fsanitize=${VAGREL_SANITIZE})
endif()

# vagrel_needs(TARGET): what compiling against a library takes, in the tree and installed.
function(vagrel_needs target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                                 $<INSTALL_INTERFACE:include>)
    target_link_libraries(${target} PUBLIC Threads::Threads)
endfunction()

function(vagrel_settings target)
    vagrel_needs(${target})
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vagrel_build> $<BUILD_INTERFACE:vagrel_strict>)
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <string>
                              <string_view> <unordered_map> <utility> <vector>)
endfunction()

# The folders below become one library, vagrel::vagrel, whose objects `vagrel_gather` takes from them. As a shared library
# their objects are position independent, too.
if(BUILD_SHARED_LIBS)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()

# vagrel_export(TARGET): a shared library shows the names of the namespace vagrel and nothing else. A version script does
# it for all of them at once; visibility attributes would want a macro at every class and function of every header.
function(vagrel_export target)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        set(script ${PROJECT_SOURCE_DIR}/cmake/vagrel.map)
        target_link_options(${target} PRIVATE LINKER:--version-script=${script})
        set_target_properties(${target} PROPERTIES LINK_DEPENDS ${script} VERSION ${PROJECT_VERSION}
                                                   SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    endif()
endfunction()

# vagrel_library(NAME [INSTALLED] SOURCES ... LINKS ...): a leaf, vagrel::NAME, which builds and tests alone. INSTALLED makes
# it a library of its own for others, static or shared.
function(vagrel_library name)
    cmake_parse_arguments(ARG "INSTALLED" "" "SOURCES;LINKS" ${ARGN})
    set(kind STATIC)
    if(ARG_INSTALLED)
        set(kind)
    endif()
    add_library(vagrel_${name} ${kind} ${ARG_SOURCES})
    add_library(vagrel::${name} ALIAS vagrel_${name})
    vagrel_settings(vagrel_${name})
    target_link_libraries(vagrel_${name} PUBLIC ${ARG_LINKS})
    vagrel_export(vagrel_${name})
endfunction()

# vagrel_part(NAME SOURCES ...): a folder of the engine.
function(vagrel_part name)
    cmake_parse_arguments(ARG "" "" "SOURCES" ${ARGN})
    add_library(vagrel_${name} OBJECT ${ARG_SOURCES})
    vagrel_settings(vagrel_${name})
endfunction()

# vagrel_gather(FOLDER ...): the library vagrel::vagrel, static or shared, out of the folders' objects.
function(vagrel_gather)
    add_library(vagrel)
    add_library(vagrel::vagrel ALIAS vagrel)
    foreach(folder ${ARGN})
        target_sources(vagrel PRIVATE $<TARGET_OBJECTS:vagrel_${folder}>)
    endforeach()
    vagrel_needs(vagrel)
    target_link_libraries(vagrel PRIVATE $<BUILD_INTERFACE:vagrel_build>)
    set_target_properties(vagrel PROPERTIES LINKER_LANGUAGE CXX)
    vagrel_export(vagrel)
endfunction()

# vagrel_test(NAME SOURCES ... LINKS ...): the tests of one folder, found by ctest case by case.
function(vagrel_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(test_${name} ${ARG_SOURCES})
    vagrel_settings(test_${name})
    target_precompile_headers(test_${name} PRIVATE <gtest/gtest.h>)
    target_link_libraries(test_${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
    gtest_discover_tests(test_${name} DISCOVERY_TIMEOUT 60)
endfunction()
