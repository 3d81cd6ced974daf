# Toolchain for Windows by MinGW-w64. tools/build-windows.sh puts the libraries that the core and
# its tests need into MORTANE_WINDOWS_PREFIX.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT DEFINED MORTANE_WINDOWS_PREFIX)
  set(MORTANE_WINDOWS_PREFIX "${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries")
endif()
set(CMAKE_FIND_ROOT_PATH "${MORTANE_WINDOWS_PREFIX}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One file to copy to a Windows machine, with no run-time libraries beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# libxml2's headers ask for a DLL unless told that it is linked statically.
add_compile_definitions(LIBXML_STATIC)

# Test programs cannot list their tests on the machine that builds them.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
