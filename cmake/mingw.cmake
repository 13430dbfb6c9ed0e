# MinGW-w64 with POSIX threads, linked statically: what it builds needs the operating system alone.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${NV_WINDOWS_TARGET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${NV_WINDOWS_TARGET}-g++-posix)
set(CMAKE_RC_COMPILER ${NV_WINDOWS_TARGET}-windres)
set(NV_WIDL ${NV_WINDOWS_TARGET}-widl)
set(NV_OBJCOPY ${NV_WINDOWS_TARGET}-objcopy)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Windows 7 is the oldest system; newer functions are looked up when they are needed.
add_compile_definitions(UNICODE _UNICODE _WIN32_WINNT=0x0601 WINVER=0x0601 NTDDI_VERSION=0x06010000)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--no-undefined -Wl,--enable-stdcall-fixup")
# The same sources make the same bytes, wherever and whenever they are built, with ccache (which may shorten paths so) or
# without: paths are told from the build folder on, the later rule first.
file(RELATIVE_PATH up ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR}/)
add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=${up}>"
                    "$<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_BINARY_DIR}/=>")
add_link_options(-Wl,--no-insert-timestamp)
