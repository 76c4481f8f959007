# Where `cmake --install` puts the program: the window and the command line in
# the binary folder, desktop integration, man pages, the sample PPD and the
# package documentation under the data folder. The driver filter installs
# itself into CUPS's filter folder (driver/CMakeLists.txt).
include(GNUInstallDirs)

set(ORVO_PACKAGE_NAME orvo-printer-utility)
set(ORVO_PACKAGING_DIR ${PROJECT_SOURCE_DIR}/packaging)
set(ORVO_RESOURCES_DIR ${PROJECT_SOURCE_DIR}/OrvoPrinterUtility/resources)

install(TARGETS orvo-printer-utility orvo-printer-utility-cli
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${ORVO_RESOURCES_DIR}/orvo-printer-utility.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${ORVO_RESOURCES_DIR}/icons/orvo-printer-utility.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${ORVO_PACKAGING_DIR}/com.orvo.PrinterUtility.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
# cups-driverd offers the PPDs under the ppd folder to lpinfo -m and lpadmin -m.
install(FILES ${ORVO_PACKAGING_DIR}/orvo-printer.ppd
        DESTINATION ${CMAKE_INSTALL_DATADIR}/ppd/orvo)
install(FILES ${ORVO_PACKAGING_DIR}/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${ORVO_PACKAGE_NAME})

# Man pages go in compressed without a time stamp, as Debian wants them.
set(ORVO_MAN_PAGES orvo-printer-utility.1 orvo-printer-utility-cli.1 orvo-ppd-update.8)
foreach(page IN LISTS ORVO_MAN_PAGES)
    set(compressed ${PROJECT_BINARY_DIR}/man/${page}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/man
        COMMAND gzip -9nc ${ORVO_PACKAGING_DIR}/man/${page} > ${compressed}
        DEPENDS ${ORVO_PACKAGING_DIR}/man/${page} VERBATIM)
    list(APPEND ORVO_COMPRESSED_MAN_PAGES ${compressed})
    string(REGEX MATCH "[0-9]$" section ${page})
    install(FILES ${compressed} DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section})
endforeach()
add_custom_target(orvo_man_pages ALL DEPENDS ${ORVO_COMPRESSED_MAN_PAGES})
