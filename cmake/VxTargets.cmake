# vx_target(NAME): the settings that hold for every target of ours and for no code of others.
function(vx_target name)
  target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
  target_compile_options(${name} PRIVATE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wold-style-cast
                         $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>)
  if(VX_WARNINGS_AS_ERRORS)
    target_compile_options(${name} PRIVATE -Werror)
  endif()
  # Without this, moc overlooks a class that is added to a build folder that is there already.
  get_target_property(sources ${name} SOURCES)
  if(NOT "${sources}" STREQUAL "${VX_SOURCES_OF_${name}}")
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/timestamp)
    set(VX_SOURCES_OF_${name} "${sources}" CACHE INTERNAL "")
  endif()
  if(VX_SANITIZE MATCHES "thread")
    # GCC does not model atomic fences under this sanitizer; ours do not use any, Boost's headers mention them.
    target_compile_options(${name} PRIVATE -Wno-tsan)
  endif()
endfunction()
