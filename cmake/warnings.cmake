# Warnings are errors; the rules, which have no toolkit header to please, take
# the stricter set.
add_compile_options(-Wall -Wextra -Wpedantic -Werror)

function(torvenhall_strict target)
  target_compile_options(${target} PRIVATE -Wconversion -Wshadow)
endfunction()
