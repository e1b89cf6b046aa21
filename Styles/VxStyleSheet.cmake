# Style sheets for a target: our template in the colours of palette files. This file, the script, the template and the icons
# are installed together; the CMake package includes it. Set the global property VX_STYLE_SHEET_RCC to Qt's rcc before.

# vx_add_style_sheet(TARGET PALETTE ... [FOLDER FOLDER]): writes NAME.qss and the folder NAME with its icons from each
# NAME.palette, and adds them to the program or shared library TARGET as the Qt resource :/Styles/NAME.qss. FOLDER is
# where the files are written, by default TARGET_styles in the binary folder.
function(vx_add_style_sheet target)
  cmake_parse_arguments(arg "" "FOLDER" "" ${ARGN})
  set(here ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_styles)
  if(arg_FOLDER)
    get_filename_component(folder "${arg_FOLDER}" ABSOLUTE BASE_DIR ${CMAKE_CURRENT_BINARY_DIR})
  endif()
  file(GLOB icon_templates CONFIGURE_DEPENDS ${here}/icons/*.svg.in)
  set(sheets "")
  set(resource_files "")
  foreach(palette IN LISTS arg_UNPARSED_ARGUMENTS)
    get_filename_component(palette "${palette}" ABSOLUTE)
    get_filename_component(name "${palette}" NAME_WE)
    set(sheet ${folder}/${name}.qss)
    add_custom_command(
      OUTPUT ${sheet}
      COMMAND ${CMAKE_COMMAND} -DTEMPLATE=${here}/Template.qss.in -DPALETTE=${palette} -DICONS=${here}/icons
              -DSHEET=${sheet} -P ${here}/BuildStyleSheet.cmake
      DEPENDS ${here}/Template.qss.in ${palette} ${here}/BuildStyleSheet.cmake ${icon_templates}
      COMMENT "Style sheet ${name}.qss"
      VERBATIM)
    list(APPEND sheets ${sheet})
    string(APPEND resource_files "    <file>${name}.qss</file>\n")
    foreach(icon_template IN LISTS icon_templates)
      get_filename_component(icon ${icon_template} NAME_WE)
      foreach(tint "" -disabled -on-accent)
        string(APPEND resource_files "    <file>${name}/${icon}${tint}.svg</file>\n")
        string(APPEND resource_files "    <file>${name}/${icon}${tint}@2x.svg</file>\n")
      endforeach()
    endforeach()
  endforeach()

  string(MAKE_C_IDENTIFIER ${target}_styles resource)
  file(CONFIGURE OUTPUT ${folder}/${resource}.qrc @ONLY
       CONTENT "<RCC>\n  <qresource prefix=\"/Styles\">\n${resource_files}  </qresource>\n</RCC>\n")
  get_property(rcc GLOBAL PROPERTY VX_STYLE_SHEET_RCC)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${resource}.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${rcc} --name ${resource} --output ${source} ${folder}/${resource}.qrc
    DEPENDS ${sheets} ${folder}/${resource}.qrc
    COMMENT "Style sheets of ${target} as resources"
    VERBATIM)
  set_source_files_properties(${source} PROPERTIES SKIP_AUTOGEN ON)
  target_sources(${target} PRIVATE ${source})
endfunction()
