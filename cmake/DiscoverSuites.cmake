# Makes ctest tests of the suites of a GoogleTest program: those of a source file run in one process.
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

# Source files whose tests take seconds have a process each. The others share one, since its start is
# most of their time. What takes long begins early, so that all processors are busy to the end.
set(dear_files "^(WalkTest|PendingBenchesTest|PageDrill|LateLoadingTest|SendTest|ComparisonTest|\
WindowFacesTest|CheckedByProgramsTest|DomParserTests)$")
set(files_in_a_process 8)
if(program_name MATCHES "^(app|wizard|drives_page|switches_page|hub)_tests$")
  set(cost_of_shared "COST 20")
endif()

set(tests "")
# add_process(properties file ...): a test named after its files, so that ctest -R finds each of them.
function(add_process properties first_file)
  set(files ${first_file} ${ARGN})
  list(JOIN files "+" name)
  set(suites "")
  foreach(file IN LISTS files)
    list(APPEND suites ${suites_of_${file}})
  endforeach()
  list(TRANSFORM suites APPEND ".*")
  list(JOIN suites ":" filter)
  set(command ${EMULATOR} "${PROGRAM}" "--gtest_filter=${filter}" --gtest_brief=1
    "--gtest_output=xml:${drive}${RESULTS}/${program_name}-${first_file}.xml")
  set(words "")
  foreach(word IN LISTS command)
    string(APPEND words " \"${word}\"")
  endforeach()
  set(test "${program_name}/${name}")
  set(tests "${tests}add_test(\"${test}\"${words})\n\
set_tests_properties(\"${test}\" PROPERTIES TIMEOUT 600 ${properties})\n" PARENT_SCOPE)
endfunction()

set(shared_files "")
foreach(file IN LISTS files)
  if(file MATCHES "ProgramTest$")
    # Built programs wait for each other's device names: one such test at a time, the first ones early.
    add_process("RESOURCE_LOCK device_names COST 100" ${file})
  elseif(file MATCHES "${dear_files}")
    add_process("COST 50" ${file})
  else()
    list(APPEND shared_files ${file})
    list(LENGTH shared_files count)
    if(count EQUAL files_in_a_process)
      add_process("${cost_of_shared}" ${shared_files})
      set(shared_files "")
    endif()
  endif()
endforeach()
if(shared_files)
  add_process("${cost_of_shared}" ${shared_files})
endif()

if(DEFINED LIST)
  file(WRITE "${LIST}" "${tests}")
else()
  cmake_language(EVAL CODE "${tests}")
endif()
