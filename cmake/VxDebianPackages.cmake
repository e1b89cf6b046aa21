# Packages for Debian, one for each component of VxInstall.cmake: `cpack` in the build folder makes them.

set(CPACK_PACKAGE_VENDOR "VxUiWidgets developers")
set(CPACK_PACKAGE_CONTACT "VxUiWidgets developers <vxuiwidgets@example.com>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET VxGallery OR TARGET VxUiWidgetsDesigner)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)

set(runtime_package libvxuiwidgets${PROJECT_VERSION_MAJOR})
set(same_runtime "${runtime_package} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "What programs need that use the widgets: the libraries, and their texts in other languages.")
# What other packages have to depend on whose programs are linked to our libraries, and that the linker has to know them.
set(shlibs "")
foreach(library IN LISTS libraries)
  string(APPEND shlibs "lib${library} ${PROJECT_VERSION_MAJOR} ${runtime_package} (>= ${PROJECT_VERSION})\n")
endforeach()
file(CONFIGURE OUTPUT ${generated}/shlibs CONTENT "${shlibs}" @ONLY)
file(CONFIGURE OUTPUT ${generated}/triggers CONTENT "activate-noawait ldconfig\n" @ONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${generated}/shlibs ${generated}/triggers)
# The plugins by which GStreamer reads cameras and the screen.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS
    "gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, gstreamer1.0-x")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvxuiwidgets-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "What building against the widgets needs: headers, the static library of the kit's controls, and what CMake and \
pkg-config have to know. With two style sheets to start from.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${same_runtime}, qtbase5-dev (>= 5.15), libboost-dev (>= 1.74), libgoogle-glog-dev")
# There is nothing in it that is linked; looking takes a process for each of the many icons.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME vxuiwidgets-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "The gallery, which shows every widget in its states, and the plugin that brings the widgets into Qt Designer.")
# Qt reads the icons by a plugin.
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${same_runtime}, libqt5svg5")

include(CPack)
