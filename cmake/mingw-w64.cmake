# Toolchain for Windows by MinGW-w64. The libraries that the programs and their tests need stand in
# the cache folder that tools/windows/cache.sh names.
if(NOT windowsProcessor)
  set(windowsProcessor x86_64)
  set(windowsPrefix prefix)
endif()
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${windowsProcessor})
set(CMAKE_C_COMPILER ${windowsProcessor}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${windowsProcessor}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${windowsProcessor}-w64-mingw32-windres)

execute_process(COMMAND "${CMAKE_CURRENT_LIST_DIR}/../tools/windows/cache.sh"
  OUTPUT_VARIABLE windowsCache OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(CMAKE_FIND_ROOT_PATH "${windowsCache}/${windowsPrefix}" /usr/${windowsProcessor}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Test programs cannot list their tests on the machine that builds them.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
