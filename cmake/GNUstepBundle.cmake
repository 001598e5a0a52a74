# Lays the application out as GNUstep expects it: VorxLauncher.app with the program itself and
# Resources/ beside it.

set(bundle "${CMAKE_BINARY_DIR}/VorxLauncher.app")
set_target_properties(VorxLauncher PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${bundle}")

get_target_property(localised launcher_resources RESOURCE_FOLDER)
add_custom_target(bundle_resources ALL
  DEPENDS launcher_resources "${CMAKE_SOURCE_DIR}/resources/Info-gnustep.plist"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${localised}" "${bundle}/Resources"
  COMMAND "${CMAKE_COMMAND}" -E copy_if_different
          "${CMAKE_SOURCE_DIR}/resources/Info-gnustep.plist" "${bundle}/Resources"
  COMMENT "Putting the resources into the bundle")

# Puts an executable into the bundle's folder for programs, under the name that is looked for there.
function(bundle_program name file)
  add_custom_command(OUTPUT "${bundle}/Resources/bin/${name}" DEPENDS "${file}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${bundle}/Resources/bin"
    COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${bundle}/Resources/bin/${name}")
  add_custom_target(bundle_${name} ALL DEPENDS "${bundle}/Resources/bin/${name}")
endfunction()

if(VEXLINK)
  bundle_program(vexlink "${VEXLINK}")
elseif(TARGET sample-viewer)
  bundle_program(vexlink "$<TARGET_FILE:sample-viewer>")
endif()
if(TARGET attached-images)
  bundle_program(attached-images "$<TARGET_FILE:attached-images>")
endif()
