# Run by cpack before it packs what is installed: what Debian wants beside the programs, compressed, and the programs
# without what only linkers and debuggers read.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
set(documents ${root}/share/doc/${CPACK_PACKAGE_NAME})
file(COPY ${CMAKE_CURRENT_LIST_DIR}/debian/copyright ${CMAKE_CURRENT_LIST_DIR}/debian/changelog DESTINATION ${documents}
     FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(GLOB pages ${root}/share/man/man*/*)
execute_process(COMMAND gzip -9n ${documents}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB programs ${root}/bin/* ${root}/sbin/*)
execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note ${programs}
                COMMAND_ERROR_IS_FATAL ANY)
