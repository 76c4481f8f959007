# The Debian package: `cpack -G DEB` in a build configured with
# -DCMAKE_INSTALL_PREFIX=/usr (scripts/package). Its dependencies are the
# Debian runtime packages of the libraries the binaries link, found by
# dpkg-shlibdeps.
set(ORVO_MAINTAINER "Orvo Printer Utility developers <printer-utility@orvo.example>")

# A native package's changelog, compressed without a time stamp.
configure_file(${ORVO_PACKAGING_DIR}/changelog.in ${PROJECT_BINARY_DIR}/changelog @ONLY)
execute_process(COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/changelog)
install(FILES ${PROJECT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${ORVO_PACKAGE_NAME})

# The maintainer scripts: CUPS reloads after the install (postinst configure)
# and after the removal (postrm remove), from one script.
foreach(script postinst:configure postrm:remove)
    string(REPLACE ":" ";" script ${script})
    list(GET script 1 ORVO_RELOAD_WHEN)
    list(GET script 0 script)
    configure_file(${ORVO_PACKAGING_DIR}/maintainer-script.in ${PROJECT_BINARY_DIR}/${script}
                   @ONLY)
    list(APPEND CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/${script})
endforeach()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${ORVO_PACKAGE_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${ORVO_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "settings of Orvo printer queues: window, command line, CUPS filter")
# The synopsis is the summary above; this is the extended description.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Sets up the SNMP community, Wake-on-LAN, shared folders, forms, barcode
area definitions and colour profiles of a CUPS queue of an Orvo printer,
from a window or from the command line. The settings are kept in the
queue's PPD; the package's CUPS filter stores them there.")
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://orvo.example/printer-utility")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at run time, so dpkg-shlibdeps cannot see it: the window's display plugins.
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-qpa-plugins)
# The filter runs under cupsd; the programs also work against a remote server.
# QtKeychain loads libsecret at run time to reach the desktop's secret store,
# where the window keeps SNMPv3 passphrases; without it they last a window.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups-daemon, libsecret-1-0")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_STRIP_FILES ON)
# The filter's destination is absolute (CUPS's own folder).
set(CPACK_SET_DESTDIR ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
