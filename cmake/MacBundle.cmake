# Lays out the application as macOS expects it: VorxLauncher.app with everything in Contents/.

include(Icons)

set(information "${CMAKE_SOURCE_DIR}/resources/Info.plist")
set_target_properties(VorxLauncher PROPERTIES
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST "${information}"
  RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(bundle_programs "${CMAKE_BINARY_DIR}/VorxLauncher.app/Contents/Resources/bin")
include(BundlePrograms)

# Puts files into a folder of Contents/.
function(bundle_files folder)
  target_sources(VorxLauncher PRIVATE ${ARGN})
  set_source_files_properties(${ARGN} PROPERTIES MACOSX_PACKAGE_LOCATION "${folder}")
endfunction()

set(icon "${CMAKE_CURRENT_BINARY_DIR}/VorxLauncher.icns")
launcher_icon("${icon}")
bundle_files(Resources "${icon}")

# Only Xcode's tool compiles layout resources, and no other system has it.
find_program(IBTOOL ibtool)
if(NOT IBTOOL AND NOT CMAKE_CROSSCOMPILING)
  message(FATAL_ERROR "ibtool is missing; it comes with Xcode, not with the command-line tools alone")
endif()

get_target_property(localised launcher_resources RESOURCE_FOLDER)
get_target_property(localised_files launcher_resources RESOURCE_FILES)
foreach(file IN LISTS localised_files)
  cmake_path(RELATIVE_PATH file BASE_DIRECTORY "${localised}" OUTPUT_VARIABLE name)
  cmake_path(GET name PARENT_PATH language)
  set(compiled_folder "${CMAKE_CURRENT_BINARY_DIR}/${language}")
  file(MAKE_DIRECTORY "${compiled_folder}")

  if(name MATCHES "Localizable\\.strings$")
    set(names "${compiled_folder}/InfoPlist.strings")
    add_custom_command(OUTPUT "${names}"
      DEPENDS "${information}" "${file}" "${CMAKE_SOURCE_DIR}/script/lib/localised/bundle_texts.py"
      COMMAND Python3::Interpreter -B "${CMAKE_SOURCE_DIR}/script/lib/localised/bundle_texts.py"
              "${information}" "${file}" "${names}")
    bundle_files("Resources/${language}" "${file}" "${names}")
  elseif(IBTOOL)
    cmake_path(GET name STEM stem)
    set(compiled "${compiled_folder}/${stem}.nib")
    add_custom_command(OUTPUT "${compiled}" DEPENDS "${file}"
      COMMAND "${IBTOOL}" --errors --warnings --output-format human-readable-text
              --minimum-deployment-target "${CMAKE_OSX_DEPLOYMENT_TARGET}"
              --compile "${compiled}" "${file}"
      COMMENT "Compiling ${name}")
    bundle_files("Resources/${language}" "${compiled}")
  endif()
endforeach()

if(NOT IBTOOL)
  message(STATUS "No ibtool here: the bundle gets no layout resources and cannot start")
  bundle_files(Resources "${CMAKE_SOURCE_DIR}/packaging/mac/cross/NOT-FOR-RELEASE.txt")
endif()
