# Lays the application out for Linux: VorxLauncher.app with the program itself, Resources/ beside it,
# and the libraries that it carries.

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

# Lets a program, and every library that it loads, look for libraries in the bundle first. This
# needs a run path of the older kind: the newer kind does not apply to the libraries of libraries.
function(look_for_libraries_in program folder)
  set_target_properties(${program} PROPERTIES BUILD_RPATH "$ORIGIN/${folder}")
  target_link_options(${program} PRIVATE -Wl,--disable-new-dtags -Wl,--as-needed)
endfunction()

set(own_programs "${bundle}/VorxLauncher" "${bundle_programs}/attached-images")
look_for_libraries_in(VorxLauncher lib)
if(NOT VEXLINK)
  list(APPEND own_programs "${bundle_programs}/vexlink")
  look_for_libraries_in(sample-viewer ../../lib)
endif()

get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
set(carry "${CMAKE_SOURCE_DIR}/packaging/linux/carry")
set(carried "${CMAKE_CURRENT_BINARY_DIR}/carried")
add_custom_command(OUTPUT "${carried}"
  DEPENDS VorxLauncher ${own_programs} "${carry}" "${CMAKE_SOURCE_DIR}/packaging/linux/machine-libraries"
  COMMAND Python3::Interpreter -B "${carry}" "${qmake}" "${bundle}" ${own_programs}
  COMMAND "${CMAKE_COMMAND}" -E touch "${carried}"
  COMMENT "Putting the libraries into the bundle")
add_custom_target(bundle_libraries DEPENDS "${carried}")
add_dependencies(bundle_libraries bundle_vexlink bundle_attached-images)
add_dependencies(application bundle_libraries)
