# The programs inside the bundle, in the folder ${bundle_programs}. The viewer is one; a platform adds
# others with bundle_program.

# Puts an executable there under the name that the launcher looks for.
function(bundle_program name file)
  set(inside "${bundle_programs}/${name}")
  add_custom_command(OUTPUT "${inside}" DEPENDS "${file}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${bundle_programs}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${inside}")
  add_custom_target(bundle_${name} DEPENDS "${inside}")
  add_dependencies(application bundle_${name})
endfunction()

if(VEXLINK)
  bundle_program(vexlink "${VEXLINK}")
elseif(TARGET sample-viewer)
  bundle_program(vexlink "$<TARGET_FILE:sample-viewer>")
endif()
