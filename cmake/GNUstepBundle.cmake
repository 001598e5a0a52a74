# Lays the application out as GNUstep expects it: VorxLauncher.app with the program itself and
# Resources/ beside it.

set(bundle "${CMAKE_BINARY_DIR}/VorxLauncher.app")
set_target_properties(VorxLauncher PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${bundle}")

# Keeps what debuggers want to know in a file of its own, which is not shipped.
function(ship_without_debug_information program)
  set(kept "${CMAKE_BINARY_DIR}/${program}.debug")
  add_custom_command(TARGET ${program} POST_BUILD
    COMMAND "${CMAKE_OBJCOPY}" --only-keep-debug "$<TARGET_FILE:${program}>" "${kept}"
    COMMAND "${CMAKE_OBJCOPY}" --strip-debug "--add-gnu-debuglink=${kept}" "$<TARGET_FILE:${program}>")
endfunction()

ship_without_debug_information(VorxLauncher)

include(Icons)
set(icon "${CMAKE_CURRENT_BINARY_DIR}/VorxLauncher.png")
launcher_icon("${icon}")

get_target_property(localised launcher_resources RESOURCE_FOLDER)
add_custom_target(bundle_resources
  DEPENDS launcher_resources "${icon}" "${CMAKE_SOURCE_DIR}/resources/Info-gnustep.plist"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${localised}" "${bundle}/Resources"
  COMMAND "${CMAKE_COMMAND}" -E copy_if_different
          "${CMAKE_SOURCE_DIR}/resources/Info-gnustep.plist" "${icon}" "${bundle}/Resources"
  COMMENT "Putting the resources into the bundle")
add_dependencies(application bundle_resources)

set(bundle_programs "${bundle}/Resources/bin")
include(BundlePrograms)
if(TARGET attached-images)
  bundle_program(attached-images "$<TARGET_FILE:attached-images>")
endif()
