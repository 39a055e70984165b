# The Debian package: what dpkg is told, and the documents that Debian wants beside the program.
# A native package: its version is the program's.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrom)
set(CPACK_PACKAGE_CONTACT "Kestrom developers <kestrom@users.noreply.github.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# shlibdeps finds the libraries. The plugins that Qt loads by itself (svg and gif pictures, X11 and offscreen windows)
# lie in the packages of libraries that are linked anyway; only Wayland windows are a package of their own.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "bluez, qt6-wayland, qt6-gtk-platformtheme")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Kestrom talks to the ELM327-type adapter in a car's diagnostic port, over
Wi-Fi, Bluetooth or a USB cable. It shows trouble codes with their meaning,
the malfunction lamp and the readiness monitors, clears codes, draws live
values as charts and on dials, and logs them.
.
The same work runs from the command line, without a display and with JSON for
scripts. A virtual car with its adapter is included, for trying everything
without either.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -u -R -d ${RELEASE_DATE}
  OUTPUT_VARIABLE RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(debian/changelog.in debian/changelog @ONLY)
configure_file(debian/add-documents.cmake.in debian/add-documents.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/debian/add-documents.cmake)
include(CPack)
