# vx_target(NAME): applies the project's compiler settings to a target.
function(vx_target name)
  target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
  if(MSVC)
    # 4251 and 4275 warn about members and bases of exported classes that are not exported. These are private, or classes
    # of Qt and the kit, which are built by the same compiler.
    target_compile_options(${name} PRIVATE /W4 /permissive- /utf-8 /Zc:__cplusplus /wd4251 /wd4275
                                           $<$<BOOL:${VX_WARNINGS_AS_ERRORS}>:/WX>)
  else()
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wold-style-cast
                                           $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
                                           $<$<BOOL:${VX_WARNINGS_AS_ERRORS}>:-Werror>)
  endif()
  if(VX_SANITIZE MATCHES "thread")
    # GCC warns about atomic fences, which the thread sanitizer does not model. Only Boost's headers contain them.
    target_compile_options(${name} PRIVATE -Wno-tsan)
  endif()
endfunction()

# vx_version_resource(NAME DESCRIPTION): adds the version resource that Windows shows in the file properties.
function(vx_version_resource name description)
  if(NOT WIN32)
    return()
  endif()
  set(VX_FILE_TYPE VFT_DLL)
  get_target_property(type ${name} TYPE)
  if(type STREQUAL "EXECUTABLE")
    set(VX_FILE_TYPE VFT_APP)
  endif()
  set(VX_FILE_DESCRIPTION "${description}")
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${name}Version.rc)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/VxVersion.rc.in ${resource} @ONLY)
  file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}FileName.h
       CONTENT "#define VX_FILE_NAME \"$<TARGET_FILE_NAME:${name}>\"\n")
  target_sources(${name} PRIVATE ${resource})
endfunction()
