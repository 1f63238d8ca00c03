# Run by CPack between installing and packing: brings what was installed into
# the form that the distribution asks for, with nothing in it that changes from
# one time to the next.
set(usr ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)

# The distribution keeps games apart. The program finds its files from there, too.
file(MAKE_DIRECTORY ${usr}/games)
file(RENAME ${usr}/bin/torvenhall ${usr}/games/torvenhall)
file(REMOVE_RECURSE ${usr}/bin)

# The changelog in the distribution's own form.
file(COPY_FILE ${CPACK_DEBIAN_CHANGELOG} ${usr}/share/doc/torvenhall/changelog)
file(GLOB pages ${usr}/share/man/man6/* ${usr}/share/man/*/man6/*)
execute_process(COMMAND gzip -9n ${usr}/share/doc/torvenhall/changelog ${pages}
  COMMAND_ERROR_IS_FATAL ANY)

# Whoever packs it, everybody can read it.
execute_process(COMMAND chmod -R u=rwX,go=rX ${usr} COMMAND_ERROR_IS_FATAL ANY)

# CPack itself gives every file in a package this time.
if("$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
  set(ENV{SOURCE_DATE_EPOCH} ${CPACK_TORVENHALL_RELEASED})
endif()
