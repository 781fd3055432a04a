# Run by CPack over the files that are about to be packed: compresses the manual
# pages, names and compresses the changelogs, adds what Debian wants to know of
# the licence. Gives the same bytes on every run.
set(racine ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(documents ${racine}/doc/quilvane)
file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
file(COPY ${CPACK_QUILVANE_SOURCE}/paquet/copyright DESTINATION ${documents}
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# The package's own changelog has the one entry of this release.
execute_process(COMMAND date -u -R -d @$ENV{SOURCE_DATE_EPOCH} OUTPUT_VARIABLE jour
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(WRITE ${documents}/changelog.Debian
"quilvane (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) bookworm; urgency=medium

  * Package of quilvane ${CPACK_PACKAGE_VERSION}; see changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${jour}
")

file(GLOB pages ${racine}/man/man1/*.1 ${racine}/man/fr/man1/*.1)
execute_process(COMMAND gzip -9 -n ${pages} ${documents}/changelog ${documents}/changelog.Debian
  COMMAND_ERROR_IS_FATAL ANY)

# Whatever the umask of who makes it.
execute_process(COMMAND chmod -R u+rwX,go+rX,go-w ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
