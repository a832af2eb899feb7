# Headers that most sources of a kind include, compiled once. Only where tests are built: the build of the
# product does without, and so finds a source that forgot an include.
function(precompile_for_tests target)
  if(TESSARY_TESTS)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
