# add_test_suites(TARGET PREFIX): every test suite of a GoogleTest executable is a CTest entry, PREFIX.Suite, that
# runs in a process of its own. The executable is asked for its suites when ctest starts.
#
# An entry for each test case would start the program, and a virtual screen, for each of them: that costs more than
# the tests do. Within a suite the output names the case that failed.
set(TEST_SUITES_LISTER ${CMAKE_CURRENT_LIST_DIR}/ListTestSuites.cmake)

function(add_test_suites target prefix)
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.cmake)
  file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}_include.cmake CONTENT "\
include(\"${TEST_SUITES_LISTER}\")
list_test_suites(\"$<TARGET_FILE:${target}>\" \"${prefix}\" \"${list}\")
include(\"${list}\")
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}_include.cmake)
endfunction()
