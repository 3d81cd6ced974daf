# Test programs: one a room, precompiled headers shared among them, one ctest test for a few source
# files or for one that takes long.

# mortane_test(name [QT] SOURCES ... LIBRARIES ...)
# A program with the shared main function. QT gives it an application that needs no display. The
# tests of a source file run in one process; each ends within a minute, or the process says which did
# not.
function(mortane_test name)
  cmake_parse_arguments(ARG "QT" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  if(ARG_QT)
    mortane_test_code(${name} QT)
    target_link_libraries(${name} PRIVATE mortane_qt_test_main)
  else()
    mortane_test_code(${name})
    target_link_libraries(${name} PRIVATE mortane_test_main)
  endif()
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} GTest::gtest)
  mortane_discover_suites(${name})
endfunction()

# Built far more often than it runs. Unoptimised, the larger files have more sections than the usual
# object file can count.
set(MORTANE_WINDOWS_QT_TEST_OPTIONS -O0 -Wa,-mbig-obj)

# mortane_test_code(target [QT])
# The flags and precompiled headers of test code, for programs and for what they share.
function(mortane_test_code target)
  target_link_libraries(${target} PRIVATE mortane_test_flags)
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  if(WIN32 AND NOT "QT" IN_LIST ARGN)
    return()
  endif()
  if("QT" IN_LIST ARGN)
    if(WIN32)
      target_compile_options(${target} PRIVATE ${MORTANE_WINDOWS_QT_TEST_OPTIONS})
    endif()
    target_precompile_headers(${target} REUSE_FROM mortane_qt_test_headers)
  else()
    target_precompile_headers(${target} REUSE_FROM mortane_test_headers)
  endif()
endfunction()

# Lists the tests once the program is built. A program for another system cannot be asked on the
# machine that builds it; its tests are listed when ctest runs.
function(mortane_discover_suites name)
  set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}.suites.cmake")
  set(script "${PROJECT_SOURCE_DIR}/cmake/DiscoverSuites.cmake")
  if(CMAKE_CROSSCOMPILING)
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${list}")
    file(GENERATE OUTPUT "${list}" CONTENT
      "set(PROGRAM \"$<TARGET_FILE:${name}>\")\nset(RESULTS \"${PROJECT_BINARY_DIR}/results\")\n\
set(EMULATOR \"${CMAKE_CROSSCOMPILING_EMULATOR}\")\ninclude(\"${script}\")\n")
    return()
  endif()
  set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${script}")
  add_custom_command(TARGET ${name} POST_BUILD VERBATIM COMMAND ${CMAKE_COMMAND}
    -D "PROGRAM=$<TARGET_FILE:${name}>" -D "RESULTS=${PROJECT_BINARY_DIR}/results"
    -D "LIST=${list}" -P "${script}")
  # A program that is not built yet is a test that fails, and keeps no other from running.
  set(included "${CMAKE_CURRENT_BINARY_DIR}/${name}.tests.cmake")
  file(WRITE "${included}" "if(EXISTS \"${list}\")\n  include(\"${list}\")\nelse()\n\
  add_test(\"${name}/NotBuilt\" \"${name}/NotBuilt\")\nendif()\n")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${included}")
endfunction()

# mortane_test_paths(source NAME=path ...)
# Paths as texts in definitions, of that source alone: the others compile alike in every checkout.
function(mortane_test_paths source)
  foreach(path IN LISTS ARGN)
    string(REGEX REPLACE "^([A-Z_]+)=(.*)$" "\\1=\"\\2\"" definition "${path}")
    set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS "${definition}")
  endforeach()
endfunction()
