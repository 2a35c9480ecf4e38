# `cpack` in the build folder makes the package; tools/package does all of it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME barquell)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Barquell founders <barquell@vexolith.com>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/build/packages)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/Finish.cmake)

# One package: neither the program nor the server is of use without the other, and one name removes both.
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://vexolith.com/barquell)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "holds accidental touches of the Touch Bar back
Barquell filters what the Touch Bar of a laptop reports, so that an accidental
touch does nothing. While Fn, or another key of one's choice, is held, touches
go through.
.
The program runs as an ordinary user and sits in the panel. A small system
service beside it holds the Touch Bar's device; it starts when it is needed and
serves only users who were granted that through polkit.")
# The libraries are found in the programs. Pictures are SVG files, which Qt reads by a plugin.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6 (>= 6.4), polkitd")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "dbus-user-session | dbus-x11, default-logind | logind, polkit-1-auth-agent, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/debian/postinst ${CMAKE_CURRENT_SOURCE_DIR}/debian/postrm
                                       ${CMAKE_CURRENT_SOURCE_DIR}/debian/prerm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
