# Lays the application out for Linux: VorxLauncher.app with the program itself and Resources/ beside
# it.

set(bundle "${CMAKE_BINARY_DIR}/VorxLauncher.app")
set_target_properties(VorxLauncher PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${bundle}")

# Moves debug info into a separate file that is not shipped.
function(ship_without_debug_information program)
  set(kept "${CMAKE_BINARY_DIR}/${program}.debug")
  add_custom_command(TARGET ${program} POST_BUILD
    COMMAND "${CMAKE_OBJCOPY}" --only-keep-debug "$<TARGET_FILE:${program}>" "${kept}"
    COMMAND "${CMAKE_OBJCOPY}" --strip-debug "--add-gnu-debuglink=${kept}" "$<TARGET_FILE:${program}>")
endfunction()

ship_without_debug_information(VorxLauncher)

include(Icons)
set(icon "${bundle}/Resources/VorxLauncher.png")
launcher_icon("${icon}")
add_custom_target(bundle_icon DEPENDS "${icon}")
add_dependencies(application bundle_icon)

set(bundle_programs "${bundle}/Resources/bin")
include(BundlePrograms)
if(TARGET attached-images)
  bundle_program(attached-images "$<TARGET_FILE:attached-images>")
endif()
