# The flags with which distributions build what they ship: a fault that is left
# in the program then ends it instead of letting somebody in. They are no
# burden, so every build has them and is tested with them; only what an
# optimising compiler alone can do (TORVENHALL_FORTIFY) is for the optimised
# ones. They are for ELF: elsewhere the linker's own defaults stand.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

set(TORVENHALL_FORTIFY)
if(NOT UNIX OR APPLE)
  return()
endif()

foreach(flag -fPIE -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "compiler${flag}" taken)
  check_cxx_compiler_flag(${flag} ${taken})
  if(${taken})
    add_compile_options(${flag})
  endif()
endforeach()

foreach(flag -pie -Wl,-z,relro,-z,now -Wl,-z,noexecstack)
  string(MAKE_C_IDENTIFIER "linker${flag}" taken)
  check_linker_flag(CXX ${flag} ${taken})
  if(${taken})
    add_link_options(${flag})
  endif()
endforeach()

# 3 also knows sizes that only show at run time; an older library takes it for 2.
set(TORVENHALL_FORTIFY -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:${TORVENHALL_FORTIFY}>")
