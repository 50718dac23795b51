# Import libraries that load their DLL at the first call instead of at
# process start. Under Wine each system DLL loaded at start costs several
# milliseconds before the program's first step; the file chooser, screen
# readers and sounds come, if at all, long after start-up.
find_program(MORVANE_DLLTOOL ${MINGW_PREFIX}-dlltool REQUIRED)

# morvane_delay_load(<target> <dll> <exports...>): links <target> to <dll>
# through a delay-import library of the named exports.
function(morvane_delay_load target dll)
  set(dir ${CMAKE_BINARY_DIR}/delay)
  set(def ${dir}/${dll}.def)
  set(lib ${dir}/lib${dll}_delay.a)
  list(JOIN ARGN "\n" exports)
  file(MAKE_DIRECTORY ${dir})
  file(CONFIGURE OUTPUT ${def} CONTENT "LIBRARY ${dll}.dll\nEXPORTS\n${exports}\n")
  add_custom_command(OUTPUT ${lib}
    COMMAND ${MORVANE_DLLTOOL} --input-def ${def} --output-delaylib ${lib}
    DEPENDS ${def} VERBATIM)
  add_custom_target(${dll}_delay DEPENDS ${lib})
  add_dependencies(${target} ${dll}_delay)
  target_link_libraries(${target} PUBLIC ${lib})
endfunction()
