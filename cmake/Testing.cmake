# GoogleTest from Debian's sources, built for whatever target the tests are built for.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
foreach(library gtest gtest_main gmock gmock_main)
  target_compile_options(${library} PRIVATE -w)
  get_target_property(directories ${library} INTERFACE_INCLUDE_DIRECTORIES)
  set_target_properties(${library} PROPERTIES INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${directories}")
endforeach()

# What a test costs is the time that it takes to compile and to link. Without any optimisation there would be so
# many more functions that linking takes ten times as long.
if(WIN32 AND NOT MSVC)
  add_compile_options(-Og)
endif()

# Most of the time that a test takes to compile goes into the headers of GoogleTest and of the standard library,
# so those are compiled once. Each test includes what it needs all the same.
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/test_headers.cpp CONTENT "")
add_library(test_headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/test_headers.cpp)
target_link_libraries(test_headers PRIVATE corvane_settings gmock)
target_precompile_headers(test_headers PRIVATE
  <gmock/gmock.h> <gtest/gtest.h>
  <algorithm> <array> <filesystem> <functional> <map> <optional> <set> <span> <string> <string_view> <vector>)

# corvane_test(NAME core_store LABEL core SOURCES a_test.cpp LIBRARIES store test_support
#              ENVIRONMENT "EDITOR=$<TARGET_FILE:corvane>"  # what the program finds in its environment
#              RESOURCE_LOCK pictures                       # what no two tests may use at once
#              TIMEOUT 60                                   # seconds, 120 unless told
#              DPI 96 144 192 CODE_PAGES 1251 1252)         # one entry for each, for Windows programs
# One test program, one CTest entry. Cross-built programs run under the emulator of the toolchain.
function(corvane_test)
  cmake_parse_arguments(TEST "" "NAME;LABEL;TIMEOUT"
    "SOURCES;LIBRARIES;ENVIRONMENT;RESOURCE_LOCK;DPI;CODE_PAGES" ${ARGN})
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 300)
  endif()
  add_executable(${TEST_NAME} ${TEST_SOURCES})
  target_link_libraries(${TEST_NAME} PRIVATE corvane_settings ${TEST_LIBRARIES} gmock_main)
  target_precompile_headers(${TEST_NAME} REUSE_FROM test_headers)

  set(entries ${TEST_NAME})
  if(WIN32 AND TEST_DPI)
    list(TRANSFORM TEST_DPI REPLACE ".+" "${TEST_NAME}_at_\\0_dpi" OUTPUT_VARIABLE entries)
  elseif(WIN32 AND TEST_CODE_PAGES)
    list(TRANSFORM TEST_CODE_PAGES REPLACE ".+" "${TEST_NAME}_in_\\0" OUTPUT_VARIABLE entries)
  endif()
  foreach(entry IN LISTS entries)
    # Far from UTC, by an odd half hour, so that it shows where one time is taken for the other. It is also the
    # first zone in Wine's list, which every program that starts walks until it has found the machine's.
    set(environment ${TEST_ENVIRONMENT} "TZ=<+0430>-04:30")
    set(limit ${TEST_TIMEOUT})
    if(CMAKE_CROSSCOMPILING_EMULATOR)
      # The emulator ends the program with all that it started, which CTest could not; so it comes first.
      list(APPEND environment CORVANE_LIMIT=${limit})
      math(EXPR limit "${limit} + 60")
    endif()
    if(entry MATCHES "_at_([0-9]+)_dpi$")
      list(APPEND environment CORVANE_DPI=${CMAKE_MATCH_1})
    elseif(entry MATCHES "_in_([0-9]+)$")
      list(APPEND environment CORVANE_CODE_PAGE=${CMAKE_MATCH_1})
    endif()
    add_test(NAME ${entry} COMMAND ${TEST_NAME})
    if(CMAKE_CROSSCOMPILING_EMULATOR)
      set_tests_properties(${entry} PROPERTIES FIXTURES_REQUIRED world)
    endif()
    set_tests_properties(${entry} PROPERTIES
      LABELS "${TEST_LABEL}"
      ENVIRONMENT "${environment}"
      RESOURCE_LOCK "${TEST_RESOURCE_LOCK}"
      TIMEOUT ${limit})
  endforeach()
endfunction()
