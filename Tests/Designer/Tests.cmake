# Loads the plugin as Designer and QUiLoader do.
if(NOT TARGET VxUiWidgetsDesigner)
  return()
endif()

find_package(Qt${VX_QT_VERSION} REQUIRED COMPONENTS Designer)
vx_test(Designer/tst_DesignerPlugin.cpp LIBRARIES VxCatalogue Qt${VX_QT_VERSION}::Designer)
add_dependencies(tst_DesignerPlugin VxUiWidgetsDesigner)
target_compile_definitions(
  tst_DesignerPlugin PRIVATE VX_PLUGIN="$<TARGET_FILE:VxUiWidgetsDesigner>"
                             VX_HEADERS="${PROJECT_SOURCE_DIR}/Lib")
