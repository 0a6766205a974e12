# Run by cpack before it packs: everybody can read what is packed, and its owner alone can write it, whatever the modes
# of the files that it is made from and the mode mask of whoever makes it.
execute_process(
    COMMAND chmod -R u=rwX,go=rX,a-st ${CPACK_TEMPORARY_DIRECTORY}
    COMMAND_ERROR_IS_FATAL ANY)
