# torvenhall_reliability_test(NAME COMMAND...)
#
# A check of docs/RELIABILITY.md: prints its figures in one line and fails when
# one does not hold. The short form takes seconds; with TORVENHALL_LONG the
# command gets --long and does the full numbers, under the sanitizers only the
# robot: the others' full numbers tell no more there.
function(torvenhall_reliability_test name)
  set(timeout 170)
  if(TORVENHALL_LONG AND (name STREQUAL robot OR NOT TORVENHALL_SANITIZE))
    list(APPEND ARGN --long)
    set(timeout 14400)
  endif()
  add_test(NAME reliability.${name} COMMAND ${ARGN})
  set_tests_properties(reliability.${name} PROPERTIES
    LABELS reliability TIMEOUT ${timeout} SKIP_RETURN_CODE 77)
endfunction()
