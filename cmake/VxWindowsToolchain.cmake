# Toolchain for cross builds to Windows x86-64 with MinGW-w64. VX_WINDOWS_SDK, a CMake or environment variable, names the
# prefix that tools/windows/build-sdk has built.

if(NOT VX_WINDOWS_SDK)
  set(VX_WINDOWS_SDK "$ENV{VX_WINDOWS_SDK}" CACHE PATH "Prefix with the libraries for Windows" FORCE)
endif()
if(NOT EXISTS "${VX_WINDOWS_SDK}/lib/cmake/Qt5Widgets")
  message(FATAL_ERROR "No Qt for Windows in VX_WINDOWS_SDK ('${VX_WINDOWS_SDK}'); run tools/windows/build-sdk")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VX_WINDOWS_SDK)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
# The -win32 variant of the compiler has no std::thread.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH ${VX_WINDOWS_SDK} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Only Boost's headers are needed, so the host's serve. The link keeps other headers of /usr/include out.
get_property(in_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT in_try_compile AND NOT Boost_INCLUDE_DIR)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/boost)
  file(CREATE_LINK /usr/include/boost ${CMAKE_BINARY_DIR}/boost/boost SYMBOLIC)
  set(Boost_INCLUDE_DIR ${CMAKE_BINARY_DIR}/boost CACHE PATH "Folder with Boost's headers")
endif()
set(Boost_NO_BOOST_CMAKE ON)

# Linguist's tools run on the host.
file(GLOB linguist_tools /usr/lib/*/cmake/Qt5LinguistTools)
set(Qt5LinguistTools_DIR ${linguist_tools} CACHE PATH "Folder with the CMake package of Qt's Linguist tools")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/windows/in-wine ${VX_WINDOWS_SDK})
