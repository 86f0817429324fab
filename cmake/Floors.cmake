# The program is built floor by floor. A floor is a folder of src/ and a static library that links only the
# floors below it, and its includes are checked against the same list before anything of it is compiled, so
# that an arrow that runs upward does not build.
#
#   corvane_floor(NAME store
#                 BELOW reporting provider toolkit     # the floors it may use
#                 DECIDES a.cpp b.cpp                  # plain C++, also built natively
#                 SHOWS c.cpp                          # needs Windows
#                 SYSTEM_LIBRARIES advapi32)
function(corvane_floor)
  cmake_parse_arguments(FLOOR "" "NAME" "BELOW;DECIDES;SHOWS;SYSTEM_LIBRARIES" ${ARGN})
  set(sources ${FLOOR_DECIDES})
  if(WIN32)
    list(APPEND sources ${FLOOR_SHOWS})
  endif()
  set(scope PUBLIC)
  if(sources)
    add_library(${FLOOR_NAME} STATIC ${sources})
  else()
    add_library(${FLOOR_NAME} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_link_libraries(${FLOOR_NAME} ${scope} corvane_settings ${FLOOR_BELOW})
  if(sources)
    # Each source by itself, in every build, so that one that lacks an include does not compile.
    set_target_properties(${FLOOR_NAME} PROPERTIES UNITY_BUILD OFF)
    if(CORVANE_SANITIZE)
      # Tests that try every call in turn run this code a million times.
      target_compile_options(${FLOOR_NAME} PRIVATE -O1)
    endif()
  endif()
  if(WIN32)
    target_link_libraries(${FLOOR_NAME} ${scope} ${FLOOR_SYSTEM_LIBRARIES})
  endif()

  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  add_custom_target(${FLOOR_NAME}_includes
    COMMAND ${CMAKE_COMMAND}
      -D "FOLDER=${CMAKE_CURRENT_SOURCE_DIR}"
      -D "ALLOWED=${folder};${FLOOR_BELOW};res"
      -D "DECIDES=${FLOOR_DECIDES}"
      -P ${CMAKE_SOURCE_DIR}/cmake/check_includes.cmake
    COMMENT "Includes of ${FLOOR_NAME}"
    VERBATIM)
  add_dependencies(${FLOOR_NAME} ${FLOOR_NAME}_includes)
endfunction()
