# nv_idl(target file.idl [option...]): preprocesses an IDL file with the C preprocessor (so that it can expand tables) and compiles it
# into <name>.idl (as hosts get it), <name>.h, <name>_i.c and <name>.tlb in the build folder. `target` is an object
# library of the interface identifiers that brings the header's folder along. NV_IDL_TABLES: what the IDL includes.
set(NV_IDL_INCLUDE /usr/include/wine/wine/windows)
if(NV_WINDOWS_TARGET MATCHES i686)
  set(NV_IDL_IMPORTLIB /usr/lib/i386-linux-gnu/wine/i386-windows)
else()
  set(NV_IDL_IMPORTLIB /usr/lib/x86_64-linux-gnu/wine/x86_64-windows)
endif()

# widl writes the time and the path that it is given into what it makes, which is to be the same everywhere. Who only builds
# and tests needs no clock for that; scripts/package brings one.
find_program(NV_FAKETIME faketime)
if(NV_FAKETIME)
  set(NV_IDL_CLOCK ${CMAKE_COMMAND} -E env TZ=UTC ${NV_FAKETIME} -f "2026-01-01 00:00:00")
endif()

function(nv_idl target source)
  cmake_path(GET source STEM name)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/idl)
  file(MAKE_DIRECTORY ${folder})
  set(idl ${folder}/${name}.idl)
  set(widl ${NV_IDL_CLOCK} ${NV_WIDL} -I ${NV_IDL_INCLUDE} -L ${NV_IDL_IMPORTLIB})
  add_custom_command(
    OUTPUT ${idl} ${folder}/${name}.h ${folder}/${name}_i.c ${folder}/${name}.tlb
    COMMAND ${CMAKE_C_COMPILER} -E -P -x c -I ${PROJECT_SOURCE_DIR} ${ARGN} -o ${idl} ${CMAKE_CURRENT_SOURCE_DIR}/${source}
    COMMAND sed -i /^$/d ${idl} # what lines of the table left that say nothing here
    COMMAND ${widl} -h -o ${name}.h ${name}.idl
    COMMAND ${widl} -u -o ${name}_i.c ${name}.idl
    COMMAND ${widl} -t -o ${name}.tlb ${name}.idl
    DEPENDS ${source} ${NV_IDL_TABLES}
    WORKING_DIRECTORY ${folder}
    VERBATIM)
  add_library(${target} OBJECT ${folder}/${name}_i.c ${folder}/${name}.h)
  target_include_directories(${target} SYSTEM PUBLIC ${folder})
endfunction()
