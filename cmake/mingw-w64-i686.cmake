# Toolchain for Windows of 32 bits: for the host of libraries of 32 bits and for such a library of the
# tests. What they need has a folder of its own in the cache.
set(windowsProcessor i686)
set(windowsPrefix prefix32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")
