# Cross build for Windows x86-64 with MinGW-w64, against a prefix that tools/windows/build-sdk makes. VX_WINDOWS_SDK, as
# a variable of CMake or of the environment, is that prefix.

if(NOT VX_WINDOWS_SDK)
  set(VX_WINDOWS_SDK "$ENV{VX_WINDOWS_SDK}" CACHE PATH "Prefix with what is built for Windows" FORCE)
endif()
if(NOT EXISTS "${VX_WINDOWS_SDK}/lib/cmake/Qt5Widgets")
  message(FATAL_ERROR "There is no Qt for Windows in VX_WINDOWS_SDK ('${VX_WINDOWS_SDK}'); tools/windows/build-sdk makes it")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VX_WINDOWS_SDK)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
# The library uses threads of the standard library, which the other variant of the compiler lacks.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH ${VX_WINDOWS_SDK} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Boost is headers alone here, and those of this machine do. They get a folder of their own, without what else is there.
get_property(in_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT in_try_compile AND NOT Boost_INCLUDE_DIR)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/boost)
  file(CREATE_LINK /usr/include/boost ${CMAKE_BINARY_DIR}/boost/boost SYMBOLIC)
  set(Boost_INCLUDE_DIR ${CMAKE_BINARY_DIR}/boost CACHE PATH "Folder with Boost's headers")
endif()
set(Boost_NO_BOOST_CMAKE ON)

# So do the tools that translate, which run on this machine.
file(GLOB linguist_tools /usr/lib/*/cmake/Qt5LinguistTools)
set(Qt5LinguistTools_DIR ${linguist_tools} CACHE PATH "Folder with the CMake package of Qt's Linguist tools")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/windows/in-wine ${VX_WINDOWS_SDK})
