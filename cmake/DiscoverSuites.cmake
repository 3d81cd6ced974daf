# Makes one ctest test for each suite of a GoogleTest program. Needs PROGRAM and RESULTS, the
# folder for the results of single tests. With LIST it writes the tests there, for ctest to
# include; without, ctest itself is running it.
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" --gtest_list_tests
  OUTPUT_VARIABLE listed RESULT_VARIABLE result TIMEOUT 60)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} could not list its tests: ${result}")
endif()

# Under Wine the root of the file system is a drive, without which GoogleTest takes no path as whole.
if(EMULATOR)
  set(RESULTS "Z:${RESULTS}")
endif()

get_filename_component(program_name "${PROGRAM}" NAME_WE)
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${listed}")
set(tests "")
foreach(suite IN LISTS suites)
  string(STRIP "${suite}" suite)
  string(REGEX REPLACE "\\.$" "" suite "${suite}")
  string(REPLACE "/" "-" file "${program_name}-${suite}")
  set(test "${program_name}/${suite}")
  set(command ${EMULATOR} "${PROGRAM}" "--gtest_filter=${suite}.*" --gtest_brief=1
    "--gtest_output=xml:${RESULTS}/${file}.xml")
  set(words "")
  foreach(word IN LISTS command)
    string(APPEND words " \"${word}\"")
  endforeach()
  string(APPEND tests "add_test(\"${test}\"${words})\n"
    "set_tests_properties(\"${test}\" PROPERTIES TIMEOUT 600)\n")
endforeach()

if(DEFINED LIST)
  file(WRITE "${LIST}" "${tests}")
else()
  cmake_language(EVAL CODE "${tests}")
endif()
