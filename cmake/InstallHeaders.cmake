# Installs the public headers of Lib: headers that declare an exported widget of the same name, headers of kit classes
# (prefix Z or Q), and what these include. All others are internal.
#
# Runs at install time, with lib_root and header_destination set.

cmake_policy(VERSION 3.21)
file(GLOB waiting RELATIVE ${lib_root} ${lib_root}/UI/Kit/[QZ]*.h)
file(GLOB widget_headers RELATIVE ${lib_root} ${lib_root}/UI/Widgets/*.h)
foreach(header IN LISTS widget_headers)
  get_filename_component(class ${header} NAME_WE)
  file(STRINGS ${lib_root}/${header} exported REGEX "^class VX_WIDGETS_EXPORT ${class}( |$)")
  if(exported)
    list(APPEND waiting ${header})
  endif()
endforeach()

set(public "")
while(waiting)
  list(POP_FRONT waiting header)
  if(NOT header IN_LIST public)
    list(APPEND public ${header})
    file(STRINGS ${lib_root}/${header} lines REGEX "^#include <UI/")
    string(REGEX MATCHALL "UI/[^>]+" included "${lines}")
    list(APPEND waiting ${included})
  endif()
endwhile()

foreach(header IN LISTS public)
  get_filename_component(folder ${header} DIRECTORY)
  file(INSTALL DESTINATION ${header_destination}/${folder} TYPE FILE FILES ${lib_root}/${header})
endforeach()
