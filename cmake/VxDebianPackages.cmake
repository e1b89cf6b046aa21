# Debian packages, one per component of VxInstall.cmake. Run `cpack` in the build folder to make them.

set(CPACK_PACKAGE_VENDOR "VxUiWidgets developers")
set(CPACK_PACKAGE_CONTACT "VxUiWidgets developers <vxuiwidgets@example.com>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET VxRecorder OR TARGET VxGallery OR TARGET VxUiWidgetsDesigner)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)

if(VX_QT_VERSION EQUAL 5)
  set(runtime_package libvxuiwidgets${PROJECT_VERSION_MAJOR})
  set(qt_development qtbase5-dev)
  set(qt_svg_plugin libqt5svg5)
else()
  # Debian separates two numbers by a hyphen.
  set(runtime_package libvxuiwidgets${VX_QT_SUFFIX}-${PROJECT_VERSION_MAJOR})
  set(qt_development qt6-base-dev)
  set(qt_svg_plugin libqt6svg6)
endif()
set(same_runtime "${runtime_package} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "The shared libraries that applications link, and the
translations of their texts.")
# shlibs gives other packages their dependency on this one; triggers update the linker's cache.
set(shlibs "")
foreach(library IN LISTS libraries)
  string(APPEND shlibs "lib${library}${VX_QT_SUFFIX} ${PROJECT_VERSION_MAJOR} ${runtime_package} (>= ${PROJECT_VERSION})\n")
endforeach()
file(CONFIGURE OUTPUT ${generated}/shlibs CONTENT "${shlibs}" @ONLY)
file(CONFIGURE OUTPUT ${generated}/triggers CONTENT "activate-noawait ldconfig\n" @ONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${generated}/shlibs ${generated}/triggers)
# GStreamer's plugins for cameras and the screen.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS
    "gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, gstreamer1.0-x")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvxuiwidgets${VX_QT_SUFFIX}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers, the static library of the kit's controls, the CMake
package, the pkg-config files, and two style sheets, as files
\
and as a library of Qt resources.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${same_runtime}, ${qt_development} (>= ${VX_QT_MINIMUM}), libboost-dev (>= 1.74), libgoogle-glog-dev")
# Contains no linked binary. dpkg-shlibdeps would start a process for each icon.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME vxuiwidgets${VX_QT_SUFFIX}-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "The gallery, which shows each widget in its states, the example
application VxRecorder, and the plugin for Qt Designer.")
# Qt's plugin that reads the icons.
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${same_runtime}, ${qt_svg_plugin}")

# vx_install_compressed(FILE DESTINATION COMPONENT): installs a text compressed, without name and time stamp, so that
# packages are reproducible.
function(vx_install_compressed file destination component)
  install(CODE "execute_process(COMMAND gzip -9nc \"${PROJECT_SOURCE_DIR}/${file}\"
  OUTPUT_FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${destination}\" COMMAND_ERROR_IS_FATAL ANY)"
          COMPONENT ${component})
endfunction()

# Notices and changelogs, where Debian expects them.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} key)
  set(package ${CPACK_DEBIAN_${key}_PACKAGE_NAME})
  set(doc_folder ${CMAKE_INSTALL_DATADIR}/doc/${package})
  install(FILES cmake/debian/copyright DESTINATION ${doc_folder} COMPONENT ${component})
  vx_install_compressed(CHANGELOG.md ${doc_folder}/changelog.gz ${component})
  vx_install_compressed(cmake/debian/changelog ${doc_folder}/changelog.Debian.gz ${component})
endforeach()
install(FILES THIRD-PARTY.md THIRD-PARTY.spdx DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${runtime_package}
        COMPONENT runtime)
configure_file(cmake/debian/lintian-overrides.in ${generated}/lintian-overrides @ONLY)
install(FILES ${generated}/lintian-overrides RENAME ${CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT development)

include(CPack)
