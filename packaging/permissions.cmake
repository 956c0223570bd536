# What goes into a package may be read by all and changed by its owner, whatever whoever builds it lets others do.
execute_process(COMMAND chmod -R u=rwX,go=rX "${CPACK_TEMPORARY_DIRECTORY}" COMMAND_ERROR_IS_FATAL ANY)
