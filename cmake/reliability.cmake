# torvenhall_reliability_test(NAME COMMAND...)
#
# A check of docs/RELIABILITY.md: prints its figures in one line and fails when
# one does not hold. The short form takes seconds; with TORVENHALL_LONG the
# command gets --long and does the full numbers.
function(torvenhall_reliability_test name)
  set(timeout 170)
  if(TORVENHALL_LONG)
    list(APPEND ARGN --long)
    set(timeout 14400)
  endif()
  add_test(NAME reliability.${name} COMMAND ${ARGN})
  set_tests_properties(reliability.${name} PROPERTIES
    LABELS reliability TIMEOUT ${timeout} SKIP_RETURN_CODE 77)
endfunction()
