# A zip for Windows: `cpack` in the build folder makes it. It holds all components of VxInstall.cmake, and what they run
# on, so that the gallery starts from where the zip is unpacked.

set(CPACK_PACKAGE_VENDOR "VxUiWidgets developers")
set(CPACK_PACKAGE_FILE_NAME VxUiWidgets-${PROJECT_VERSION}-windows-x86-64)
set(CPACK_GENERATOR ZIP)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

install(FILES README.md CHANGELOG.md DESTINATION . COMPONENT development)
install(DIRECTORY Docs DESTINATION . COMPONENT development
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")

# A build on Windows itself has tools of Qt's and of the compiler's that collect these.
if(VX_WINDOWS_SDK)
  set(sdk_libraries Qt5Core Qt5Gui Qt5Widgets Qt5Svg libglog libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
  list(TRANSFORM sdk_libraries REPLACE "(.+)" "${VX_WINDOWS_SDK}/bin/\\1.dll")
  install(FILES ${sdk_libraries} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  install(DIRECTORY ${VX_WINDOWS_SDK}/plugins/ DESTINATION ${VX_INSTALL_QTPLUGINDIR} COMPONENT runtime
          FILES_MATCHING PATTERN "*.dll" PATTERN "qminimal.dll" EXCLUDE)
  file(GLOB qt_texts /usr/share/qt5/translations/qtbase_de.qm /usr/share/qt5/translations/qtbase_fr.qm
       /usr/share/qt5/translations/qtbase_ja.qm)
  install(FILES ${qt_texts} DESTINATION translations COMPONENT runtime)

  # Programs in the folder of this file take Qt's plugins and texts from where they are in the zip.
  file(CONFIGURE OUTPUT ${generated}/qt.conf @ONLY
       CONTENT "[Paths]\nPrefix=..\nPlugins=@VX_INSTALL_QTPLUGINDIR@\nTranslations=translations\n")
  install(FILES ${generated}/qt.conf DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
endif()

include(CPack)
