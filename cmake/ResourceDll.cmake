# morvane_resource_dll(NAME <file name> RC <source.rc> OUTPUT_DIR <dir>
#                      [INCLUDE_DIRS <dir>...] [DEPENDS <file>...])
# Builds a resource-only DLL: windres compiles the script, the linker wraps
# it in a PE image with no code and no entry point.
function(morvane_resource_dll)
  cmake_parse_arguments(ARG "" "NAME;RC;OUTPUT_DIR;TARGET" "INCLUDE_DIRS;DEPENDS" ${ARGN})
  get_filename_component(rc_abs ${ARG_RC} ABSOLUTE)
  get_filename_component(rc_dir ${rc_abs} DIRECTORY)
  set(obj ${CMAKE_CURRENT_BINARY_DIR}/${ARG_NAME}.res.o)
  set(dll ${ARG_OUTPUT_DIR}/${ARG_NAME})
  set(includes -I${rc_dir} -I${PROJECT_SOURCE_DIR}/resources)
  foreach(dir IN LISTS ARG_INCLUDE_DIRS)
    list(APPEND includes -I${dir})
  endforeach()
  add_custom_command(
    OUTPUT ${obj}
    COMMAND ${CMAKE_RC_COMPILER} ${includes} ${rc_abs} -O coff -o ${obj}
    DEPENDS ${rc_abs} ${PROJECT_SOURCE_DIR}/resources/resource_ids.h ${ARG_DEPENDS}
    COMMENT "Compiling resources of ${ARG_NAME}"
    VERBATIM)
  add_custom_command(
    OUTPUT ${dll}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${ARG_OUTPUT_DIR}
    COMMAND ${CMAKE_C_COMPILER} -shared -nostdlib -Wl,-e,0 -o ${dll} ${obj}
    DEPENDS ${obj}
    COMMENT "Linking resource library ${ARG_NAME}"
    VERBATIM)
  add_custom_target(${ARG_TARGET} ALL DEPENDS ${dll})
endfunction()
