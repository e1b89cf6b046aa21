# Install rules. Components: runtime (shared libraries and translations), development (headers, static libraries, CMake
# package, pkg-config files), tools (gallery, recorder, Designer plugin).
#
# Installed files use relative paths only, so that an installed tree can be moved.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_name VxUiWidgets${VX_QT_SUFFIX})
set(kit_package_name VxUiWidgetsKit${VX_QT_SUFFIX})
set(data_folder ${CMAKE_INSTALL_DATADIR}/${package_name})
set(header_folder ${CMAKE_INSTALL_INCLUDEDIR}/${package_name})
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/${package_name})
if(WIN32)
  set(qt_plugin_folder plugins)
else()
  set(qt_plugin_folder ${CMAKE_INSTALL_LIBDIR}/qt${VX_QT_VERSION}/plugins)
endif()
set(VX_INSTALL_QTPLUGINDIR ${qt_plugin_folder} CACHE PATH "Qt's plugin folder, below the prefix")

# vx_find_libraries_from(TARGET FOLDER): sets the RPATH from the folder to the library folder.
function(vx_find_libraries_from target folder)
  file(RELATIVE_PATH path "/${folder}" "/${CMAKE_INSTALL_LIBDIR}")
  string(REGEX REPLACE "/$" "" path "$ORIGIN/${path}")
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${path}")
endfunction()

foreach(target VxUiWidgets VxHost VxUiKit VxGallery VxRecorder)
  if(TARGET ${target})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${target}${VX_QT_SUFFIX})
  endif()
endforeach()

set(libraries VxUiWidgets)
set(host_dependency "find_dependency(${VX_HOST_PACKAGE})")
set(host_library "")
if(TARGET VxHost)
  list(APPEND libraries VxHost)
  set(host_dependency "find_dependency(Boost 1.74)")
  set(host_library " -lVxHost${VX_QT_SUFFIX}")
  install(DIRECTORY Host/include/ Host/StandIn/include/ DESTINATION ${header_folder} COMPONENT development
          FILES_MATCHING PATTERN "*.h")
endif()
foreach(library IN LISTS libraries)
  vx_find_libraries_from(${library} ${CMAKE_INSTALL_LIBDIR})
endforeach()

install(
  TARGETS ${libraries}
  EXPORT VxUiWidgetsTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  INCLUDES DESTINATION ${header_folder})
install(
  TARGETS VxUiKit
  EXPORT VxUiWidgetsKitTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  INCLUDES DESTINATION ${header_folder})
install(TARGETS VxStyles VxStylesResource EXPORT VxUiWidgetsStylesTargets
        OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/${package_name} COMPONENT development)

# CMake does not strip static libraries; these must keep their symbol table.
install(CODE "set(kit \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:VxUiKit>\")
if(CMAKE_INSTALL_DO_STRIP)
  execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug \"\${kit}\" COMMAND_ERROR_IS_FATAL ANY)
endif()" COMPONENT development)

# The public headers are determined at install time, so that no list has to be maintained.
install(CODE "set(lib_root \"${PROJECT_SOURCE_DIR}/Lib\")
set(header_destination \"\${CMAKE_INSTALL_PREFIX}/${header_folder}\")" COMPONENT development)
install(SCRIPT cmake/InstallHeaders.cmake COMPONENT development)

set(generated ${PROJECT_BINARY_DIR}/package)
set(style_template_folder ${data_folder}/Styles/Template)
configure_package_config_file(cmake/VxUiWidgetsConfig.cmake.in ${generated}/${package_name}Config.cmake
                              INSTALL_DESTINATION ${package_folder} PATH_VARS style_template_folder NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${generated}/${package_name}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${generated}/${package_name}Config.cmake ${generated}/${package_name}ConfigVersion.cmake DESTINATION ${package_folder} COMPONENT development)
foreach(export VxUiWidgetsTargets VxUiWidgetsKitTargets VxUiWidgetsStylesTargets)
  install(EXPORT ${export} NAMESPACE VxUiWidgets:: DESTINATION ${package_folder} COMPONENT development)
endforeach()

set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH path_to_prefix "/${pkgconfig_folder}" "/")
string(REGEX REPLACE "/$" "" path_to_prefix ${path_to_prefix})
foreach(name VxUiWidgets VxUiWidgetsKit)
  configure_file(cmake/${name}.pc.in ${generated}/${name}${VX_QT_SUFFIX}.pc @ONLY)
  install(FILES ${generated}/${name}${VX_QT_SUFFIX}.pc DESTINATION ${pkgconfig_folder} COMPONENT development)
endforeach()

set(translations ${PROJECT_BINARY_DIR}/Translations/)
foreach(library IN LISTS libraries)
  install(DIRECTORY ${translations} DESTINATION ${data_folder}/Translations COMPONENT runtime
          FILES_MATCHING PATTERN "${library}_*.qm" PATTERN CMakeFiles EXCLUDE)
endforeach()
# Applications can start their own style sheet from one of these.
install(DIRECTORY ${PROJECT_BINARY_DIR}/Styles/ DESTINATION ${data_folder}/Styles COMPONENT development
        FILES_MATCHING PATTERN "*.qss" PATTERN "*.svg" PATTERN CMakeFiles EXCLUDE)
# For vx_add_style_sheet(), with the palettes as examples.
file(GLOB palettes CONFIGURE_DEPENDS Styles/*.palette)
install(FILES Styles/VxStyleSheet.cmake Styles/BuildStyleSheet.cmake Styles/Template.qss.in ${palettes}
        DESTINATION ${data_folder}/Styles/Template COMPONENT development)
install(DIRECTORY Styles/icons DESTINATION ${data_folder}/Styles/Template COMPONENT development)

foreach(program VxGallery VxRecorder)
  if(TARGET ${program})
    vx_find_libraries_from(${program} ${CMAKE_INSTALL_BINDIR})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
    install(DIRECTORY ${translations} DESTINATION ${data_folder}/Translations COMPONENT tools
            FILES_MATCHING PATTERN "${program}_*.qm" PATTERN CMakeFiles EXCLUDE)
  endif()
endforeach()
if(TARGET VxUiWidgetsDesigner)
  vx_find_libraries_from(VxUiWidgetsDesigner ${VX_INSTALL_QTPLUGINDIR}/designer)
  # Nothing else needs it: `run` does not build it.
  install(TARGETS VxUiWidgetsDesigner OPTIONAL LIBRARY DESTINATION ${VX_INSTALL_QTPLUGINDIR}/designer COMPONENT tools)
endif()
