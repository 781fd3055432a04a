# The Debian package (`cpack -G DEB`); scripts/paquet.sh makes and tests it.
# Manual pages and changelogs are packed as Debian wants them when the package is
# made: cmake/Debianiser.cmake.
set(CPACK_PACKAGE_NAME quilvane)
set(CPACK_PACKAGE_CONTACT "quilvane maintainers <dev@quilvane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "validator of files of VSE livestock-identification records")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_SET_DESTDIR OFF)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/Debianiser.cmake)
set(CPACK_QUILVANE_SOURCE ${PROJECT_SOURCE_DIR})
# Not of Debian: a local release, which every one of Debian's would replace.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0local1 CACHE STRING "Release of the package")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the maintainer scripts need; the programs' own libraries are found.
set(CPACK_DEBIAN_PACKAGE_DEPENDS adduser)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"quilvane validates files of fixed-width VSE records, by which regional bodies
send livestock-identification events, and publishes the accepted records or a
file of errors.

quilvane-guide tells beforehand, or afterwards, what is wrong in such a file
and how to mend it. quilvane-lot works through a spool folder, unattended.")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
  ${PROJECT_SOURCE_DIR}/paquet/postinst ${PROJECT_SOURCE_DIR}/paquet/prerm ${PROJECT_SOURCE_DIR}/paquet/postrm)
include(CPack)
