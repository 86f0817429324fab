# What every target is compiled with: all warnings, and on Windows one static, small executable.
option(CORVANE_WARNINGS_AS_ERRORS "Let a warning fail the build, as ./test does; another compiler may have others" OFF)

add_library(corvane_settings INTERFACE)
target_include_directories(corvane_settings INTERFACE
  ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/generated)

if(MSVC)
  target_compile_options(corvane_settings INTERFACE /W4 $<$<BOOL:${CORVANE_WARNINGS_AS_ERRORS}>:/WX> /permissive- /utf-8 /Zc:__cplusplus)
  set(CMAKE_MSVC_RUNTIME_LIBRARY MultiThreaded)
else()
  target_compile_options(corvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-align
    -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Wnull-dereference -Wdouble-promotion
    -Wextra-semi -Wundef $<$<BOOL:${CORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(corvane_settings INTERFACE
      -Wduplicated-cond -Wduplicated-branches -Wlogical-op)
  else()
    # What only some compilers take.
    target_compile_options(corvane_settings INTERFACE -Wgnu -Wmicrosoft)
  endif()
endif()

if(WIN32)
  target_compile_definitions(corvane_settings INTERFACE
    UNICODE _UNICODE STRICT NOMINMAX WIN32_LEAN_AND_MEAN
    WINVER=0x0A00 _WIN32_WINNT=0x0A00 NTDDI_VERSION=0x0A000007)
  if(NOT MSVC)
    set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
    set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")
    target_compile_options(corvane_settings INTERFACE -ffunction-sections -fdata-sections)
    # The time of linking would make each build differ from the last.
    target_link_options(corvane_settings INTERFACE -static $<$<CONFIG:Release>:-s> -Wl,--gc-sections,--no-insert-timestamp)
  endif()
endif()

if(CORVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fsanitize=fuzzer-no-link>)
  endif()
  add_link_options(-fsanitize=address,undefined)
endif()
