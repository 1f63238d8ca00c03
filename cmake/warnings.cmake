# Warnings are errors for whoever builds the tests; a player's newer compiler,
# which may warn of more, must not keep the game from being built. The rules,
# which have no toolkit header to please, take the stricter set.
add_compile_options(-Wall -Wextra -Wpedantic)
if(TORVENHALL_TESTS)
  add_compile_options(-Werror)
endif()

function(torvenhall_strict target)
  target_compile_options(${target} PRIVATE -Wconversion -Wshadow)
endfunction()
