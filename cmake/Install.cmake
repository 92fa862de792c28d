# What `cmake --install` lays below its prefix, and the Debian package that is made of it (tools/package).
include(GNUInstallDirs)

install(TARGETS zandor-cli RUNTIME)
install(FILES src/frame/Langues.lng DESTINATION ${CMAKE_INSTALL_DATADIR}/zandor)
install(FILES README.md packaging/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zandor)
install(FILES "${generated}/zandor-cli.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

if(ZANDOR_WINDOWS)
  install(TARGETS zandor RUNTIME)
  if(UNIX)
    install(PROGRAMS packaging/Skrivo TYPE BIN) # the text editor's other name
  endif()
  install(FILES "${generated}/zandor.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES "${generated}/zandor.desktop" DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES "${generated}/zandor.metainfo.xml" DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
    RENAME invalid.zandor.zandor.metainfo.xml)
  install(FILES "${generated}/zandor.xml" DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  # the drawn icons: SIZExSIZE/apps/zandor.png, and scalable/apps/zandor.svg
  install(DIRECTORY "${CMAKE_BINARY_DIR}/assets/hicolor/" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor OPTIONAL)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zandor)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Zandor developers <developers@zandor.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "train consist editor for Microsoft Train Simulator")
set(CPACK_PACKAGE_DESCRIPTION
    "Zandor shows all engines and wagons of a simulator folder, lets the user drag them onto a strip to make a
consist, warns of couplings that don't fit, and saves a file that the simulator can load. The program zandor-cli
does the same work from the command line.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# the opening of help files, the tables of what opens what, and a display of the other kind
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "desktop-file-utils, qt6-translations-l10n, qt6-wayland, shared-mime-info, xdg-utils")
include(CPack)
