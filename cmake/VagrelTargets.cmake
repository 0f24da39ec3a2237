# SPDX-License-Identifier: MIT
# How targets of this project are made: vagrel_library for a leaf, vagrel_part for a folder of the engine, vagrel_test for
# the tests of a folder.

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
find_program(VAGREL_CCACHE ccache)
if(VAGREL_CCACHE AND PROJECT_IS_TOP_LEVEL)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime
                                    ${VAGREL_CCACHE})
endif()

add_library(vagrel_build INTERFACE)
target_compile_features(vagrel_build INTERFACE cxx_std_20)
target_include_directories(vagrel_build INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
# Fused multiply-add would change results between machines; the sources hold text beyond ASCII.
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

function(vagrel_settings target)
    target_link_libraries(${target} PUBLIC vagrel_build PRIVATE $<BUILD_INTERFACE:vagrel_strict>)
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <string>
                              <string_view> <unordered_map> <utility> <vector>)
endfunction()

# vagrel_library(NAME SOURCES ... LINKS ...): a leaf of the library, vagrel::NAME.
function(vagrel_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(vagrel_${name} ${ARG_SOURCES})
    add_library(vagrel::${name} ALIAS vagrel_${name})
    vagrel_settings(vagrel_${name})
    target_link_libraries(vagrel_${name} PUBLIC ${ARG_LINKS})
endfunction()

# What the engine stands on.
set(VAGREL_LEAVES vagrel::foundation vagrel::platform vagrel::messages vagrel::persistence vagrel::svgtext vagrel::barcode)

# vagrel_part(NAME SOURCES ...): a folder of the engine; its objects are gathered into vagrel::engine.
function(vagrel_part name)
    cmake_parse_arguments(ARG "" "" "SOURCES" ${ARGN})
    add_library(vagrel_${name} OBJECT ${ARG_SOURCES})
    vagrel_settings(vagrel_${name})
    target_link_libraries(vagrel_${name} PUBLIC ${VAGREL_LEAVES})
endfunction()

# vagrel_engine(PART ...): gathers the folders of the engine into vagrel::engine.
function(vagrel_engine)
    add_library(vagrel_engine)
    add_library(vagrel::engine ALIAS vagrel_engine)
    vagrel_settings(vagrel_engine)
    target_link_libraries(vagrel_engine PUBLIC ${VAGREL_LEAVES})
    foreach(part ${ARGN})
        target_sources(vagrel_engine PRIVATE $<TARGET_OBJECTS:vagrel_${part}>)
    endforeach()
    set_target_properties(vagrel_engine PROPERTIES LINKER_LANGUAGE CXX)
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
