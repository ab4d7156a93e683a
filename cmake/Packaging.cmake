# SPDX-License-Identifier: MIT
# What an installation consists of; the folder debian makes a package of it. Included by the root CMakeLists.txt once the
# target abissora exists.
include(GNUInstallDirs)

set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(application_icons "${PROJECT_SOURCE_DIR}/src/Resources/appicon")
include(Manuals)
set(desktop_entry "${PROJECT_BINARY_DIR}/packaging/${ABISSORA_APPLICATION_ID}.desktop")
configure_file("${packaging}/abissora.desktop.in" "${desktop_entry}" @ONLY)
set(metainfo "${PROJECT_BINARY_DIR}/packaging/${ABISSORA_APPLICATION_ID}.metainfo.xml")
configure_file("${packaging}/abissora.metainfo.xml.in" "${metainfo}" @ONLY)
# Not installed: flatpak-builder reads it beside the source archive.
configure_file("${packaging}/flatpak/abissora.yml.in"
  "${PROJECT_BINARY_DIR}/packaging/flatpak/${ABISSORA_APPLICATION_ID}.yml" @ONLY)

install(SCRIPT "${PROJECT_SOURCE_DIR}/cmake/InstalledFolders.cmake")
install(TARGETS abissora RUNTIME BUNDLE DESTINATION .)
# macOS and Windows have all that within the program (Platforms.cmake).
if(NOT APPLE AND NOT WIN32)
  install(FILES "${desktop_entry}" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES "${metainfo}" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  set(icon_theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
  install(FILES "${application_icons}/abissora.svg"
    DESTINATION "${icon_theme}/scalable/apps" RENAME "${ABISSORA_APPLICATION_ID}.svg")
  install(FILES "${application_icons}/abissora-symbolic.svg"
    DESTINATION "${icon_theme}/symbolic/apps" RENAME "${ABISSORA_APPLICATION_ID}-symbolic.svg")
  foreach(side 16 22 24 32 48 64 128 256 512)
    install(FILES "${packaging}/icons/abissora-${side}.png"
      DESTINATION "${icon_theme}/${side}x${side}/apps" RENAME "${ABISSORA_APPLICATION_ID}.png")
  endforeach()
  install(FILES "${manual_english}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES "${manual_italian}" DESTINATION "${CMAKE_INSTALL_MANDIR}/it/man1")
endif()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)
install(DIRECTORY "${packaging}/licenses/" DESTINATION "${CMAKE_INSTALL_DOCDIR}/licenses")

if(ABISSORA_TESTS)
  find_program(DESKTOP_FILE_VALIDATE_PROGRAM desktop-file-validate REQUIRED)
  find_program(APPSTREAMCLI_PROGRAM appstreamcli REQUIRED)
  add_test(NAME packaging/desktop-entry COMMAND ${DESKTOP_FILE_VALIDATE_PROGRAM} "${desktop_entry}")
  # It ends with 0 although it gave a hint.
  set_tests_properties(packaging/desktop-entry PROPERTIES FAIL_REGULAR_EXPRESSION ".")
  add_test(NAME packaging/metainfo
    COMMAND ${APPSTREAMCLI_PROGRAM} validate --pedantic --no-net "${metainfo}")
  # It ends with 0 although it gave hints, which it counts.
  set_tests_properties(packaging/metainfo PROPERTIES FAIL_REGULAR_EXPRESSION "(errors|warnings|infos|pedantic): ")
  add_test(NAME packaging/installation COMMAND ${CMAKE_COMMAND}
    "-DBUILD=${PROJECT_BINARY_DIR}" "-DVERSION=${PROJECT_VERSION}" "-DID=${ABISSORA_APPLICATION_ID}"
    -P "${packaging}/check-installation.cmake")
  set_tests_properties(packaging/installation PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endif()
