# What a program for Windows carries besides its code.

# mortane_windows_program(target DRAWING svg DESCRIPTION text)
# A program without a console, with icon, manifest and version. Nothing on other systems.
function(mortane_windows_program target)
  if(NOT WIN32)
    return()
  endif()
  cmake_parse_arguments(ARG "" "DRAWING;DESCRIPTION" "" ${ARGN})
  set(folder "${PROJECT_SOURCE_DIR}/packaging/windows")
  set(drawing "${PROJECT_SOURCE_DIR}/src/widgets/resources/icons/${ARG_DRAWING}.svg")
  set(icon "${CMAKE_CURRENT_BINARY_DIR}/${target}.ico")
  set(manifest "${folder}/program.manifest")
  set(description "${ARG_DESCRIPTION}")
  set(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  configure_file("${folder}/program.rc.in" "${resources}" @ONLY)
  add_custom_command(OUTPUT "${icon}" VERBATIM
    COMMAND "${folder}/make-icon.sh" "${drawing}" "${icon}"
    DEPENDS "${folder}/make-icon.sh" "${drawing}")
  set_source_files_properties("${resources}" PROPERTIES OBJECT_DEPENDS "${icon};${manifest}")
  target_sources(${target} PRIVATE "${resources}")
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()
