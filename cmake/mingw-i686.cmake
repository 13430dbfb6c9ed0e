# 32-bit Windows: the product. Closed libraries of a host installation are 32-bit.
set(NV_WINDOWS_TARGET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
