# The zip for Windows. Run `cpack` in the build folder to make it. It contains all components of VxInstall.cmake and
# their run-time dependencies, so that VxGallery.exe starts from the unpacked folder.

set(CPACK_PACKAGE_VENDOR "VxUiWidgets developers")
set(CPACK_PACKAGE_FILE_NAME VxUiWidgets-${PROJECT_VERSION}-windows-x86-64)
set(CPACK_GENERATOR ZIP)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

install(FILES README.md CHANGELOG.md THIRD-PARTY.md THIRD-PARTY.spdx DESTINATION . COMPONENT development)
install(DIRECTORY Docs DESTINATION . COMPONENT development
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")

# vx_notice(PART FILE): installs the notices of a third-party part as licenses/PART.txt.
function(vx_notice part file)
  install(FILES ${file} DESTINATION licenses RENAME ${part}.txt COMPONENT runtime)
endfunction()

# A native build collects these with windeployqt and the compiler's tools.
if(VX_WINDOWS_SDK)
  set(sdk_libraries Qt5Core Qt5Gui Qt5Widgets Qt5Svg libglog libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
  list(TRANSFORM sdk_libraries REPLACE "(.+)" "${VX_WINDOWS_SDK}/bin/\\1.dll")
  install(FILES ${sdk_libraries} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  install(DIRECTORY ${VX_WINDOWS_SDK}/plugins/ DESTINATION ${VX_INSTALL_QTPLUGINDIR} COMPONENT runtime
          FILES_MATCHING PATTERN "*.dll" PATTERN "qminimal.dll" EXCLUDE)
  file(GLOB qt_texts /usr/share/qt5/translations/qtbase_de.qm /usr/share/qt5/translations/qtbase_fr.qm
       /usr/share/qt5/translations/qtbase_ja.qm)
  install(FILES ${qt_texts} DESTINATION translations COMPONENT runtime)

  # The SDK is built from Debian's sources. Debian's packages of the same sources contain their notices.
  vx_notice(Qt /usr/share/doc/qtbase5-dev/copyright)
  vx_notice(QtSvg /usr/share/doc/libqt5svg5/copyright)
  vx_notice(QtTranslations /usr/share/doc/qttranslations5-l10n/copyright)
  vx_notice(glog /usr/share/doc/libgoogle-glog-dev/copyright)
  vx_notice(libyuv /usr/share/doc/libyuv-dev/copyright)
  vx_notice(Boost cmake/licenses/BSL-1.0.txt)
  vx_notice(GccRuntime /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright)
  vx_notice(MinGW /usr/share/doc/mingw-w64-x86-64-dev/copyright)
  foreach(license GPL-2 GPL-3 LGPL-2 LGPL-2.1 LGPL-3)
    vx_notice(${license} /usr/share/common-licenses/${license})
  endforeach()

  # Qt finds its plugins and translations relative to this file.
  file(CONFIGURE OUTPUT ${generated}/qt.conf @ONLY
       CONTENT "[Paths]\nPrefix=..\nPlugins=@VX_INSTALL_QTPLUGINDIR@\nTranslations=translations\n")
  install(FILES ${generated}/qt.conf DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
endif()

include(CPack)
