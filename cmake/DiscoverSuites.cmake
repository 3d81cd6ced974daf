# Makes one ctest test for each source file of a GoogleTest program: its suites, in one process.
# Needs PROGRAM and RESULTS, the folder for the results of single tests. With LIST it writes the
# tests there, for ctest to include; without, ctest itself is running it.
get_filename_component(program_name "${PROGRAM}" NAME_WE)
set(list_file "${RESULTS}/${program_name}.json")
file(REMOVE "${list_file}")
# Under Wine the root of the file system is a drive, without which GoogleTest takes no path as whole.
if(EMULATOR)
  set(drive "Z:")
endif()
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" --gtest_list_tests
  "--gtest_output=json:${drive}${list_file}" OUTPUT_QUIET RESULT_VARIABLE result TIMEOUT 60)
if(NOT result EQUAL 0 OR NOT EXISTS "${list_file}")
  message(FATAL_ERROR "${PROGRAM} could not list its tests: ${result}")
endif()
file(READ "${list_file}" listed)
file(REMOVE "${list_file}")

# A suite belongs to the file of its first test.
set(files "")
set(suite "")
string(REGEX MATCHALL "\"name\": \"[^\"]+\",[ \r\n]+\"tests\"|\"file\": \"[^\"]+\"" items "${listed}")
foreach(item IN LISTS items)
  if(item MATCHES "^.name.: .([^\"]+)")
    string(REPLACE "\\/" "/" suite "${CMAKE_MATCH_1}")
  elseif(suite AND item MATCHES "([^/\\]+)\\.cpp.$")
    list(APPEND files "${CMAKE_MATCH_1}")
    list(APPEND suites_of_${CMAKE_MATCH_1} "${suite}")
    set(suite "")
  endif()
endforeach()
list(REMOVE_DUPLICATES files)

# Those that take seconds begin before the many that take a moment, so that all processors are busy to
# the end.
set(dear_files "^(WalkTest|PendingBenchesTest|PageDrill|LateLoadingTest|SendTest|ComparisonTest|\
WindowFacesTest|CheckedByProgramsTest|DomParserTests)$")

set(tests "")
foreach(file IN LISTS files)
  set(test "${program_name}/${file}")
  list(TRANSFORM suites_of_${file} APPEND ".*" OUTPUT_VARIABLE filter)
  list(JOIN filter ":" filter)
  unset(suites_of_${file})
  set(command ${EMULATOR} "${PROGRAM}" "--gtest_filter=${filter}" --gtest_brief=1
    "--gtest_output=xml:${drive}${RESULTS}/${program_name}-${file}.xml")
  set(words "")
  foreach(word IN LISTS command)
    string(APPEND words " \"${word}\"")
  endforeach()
  # Built programs wait for each other's device names: one such test at a time, the first ones early.
  set(properties "TIMEOUT 600")
  if(file MATCHES "ProgramTest$")
    string(APPEND properties " RESOURCE_LOCK device_names COST 100")
  elseif(file MATCHES "${dear_files}")
    string(APPEND properties " COST 50")
  endif()
  string(APPEND tests "add_test(\"${test}\"${words})\n"
    "set_tests_properties(\"${test}\" PROPERTIES ${properties})\n")
endforeach()

if(DEFINED LIST)
  file(WRITE "${LIST}" "${tests}")
else()
  cmake_language(EVAL CODE "${tests}")
endif()
