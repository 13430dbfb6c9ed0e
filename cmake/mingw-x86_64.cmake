# 64-bit Windows: for 64-bit hosts.
set(NV_WINDOWS_TARGET x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
