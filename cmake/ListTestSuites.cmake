# Read by ctest; see TestSuites.cmake.

# Seconds that a suite may take: many times what the longest one needs on a busy machine.
set(TEST_SUITE_TIMEOUT 600)

# list_test_suites(EXECUTABLE PREFIX FILE): writes the entries of the executable's suites into FILE, unless it is
# newer than the executable. An executable that is not built is one entry, which fails.
function(list_test_suites executable prefix file)
  if(NOT EXISTS "${executable}")
    file(WRITE "${file}" "add_test(${prefix}.NOT_BUILT \"${executable}\")\n")
    return()
  endif()
  if(EXISTS "${file}" AND "${file}" IS_NEWER_THAN "${executable}" AND "${file}" IS_NEWER_THAN "${CMAKE_CURRENT_FUNCTION_LIST_FILE}")
    return()
  endif()

  execute_process(COMMAND "${executable}" --gtest_list_tests TIMEOUT 60
                  OUTPUT_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${executable} --gtest_list_tests: ${result}\n${output}")
  endif()
  # A suite is a line "Name." with nothing before it; its cases follow, two blanks before each. What stands behind
  # a "#" is a case's parameter.
  string(REGEX REPLACE " *#[^\n]*" "" output "${output}")
  string(REGEX MATCHALL "\n[A-Za-z0-9_/]+\\.(\n  [A-Za-z0-9_/]+)+" suites "\n${output}")
  set(script "")
  foreach(suite IN LISTS suites)
    string(REGEX MATCH "[A-Za-z0-9_/]+" name "${suite}")
    string(REGEX MATCHALL "\n  " cases "${suite}")
    list(LENGTH cases count)
    string(APPEND script
      "add_test([[${prefix}.${name}]] [[${executable}]] [[--gtest_filter=${name}.*]])\n"
      "set_tests_properties([[${prefix}.${name}]] PROPERTIES TIMEOUT ${TEST_SUITE_TIMEOUT} COST ${count})\n")
  endforeach()
  file(WRITE "${file}" "${script}")
endfunction()
