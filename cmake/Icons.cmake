# Draws the application's icon from resources/icon.svg when the build needs it.
#
#   launcher_icon(FILE)   a rule that makes FILE, a path that ends in .png or .icns

find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

function(launcher_icon file)
  set(drawing "${CMAKE_SOURCE_DIR}/resources/icon.svg")
  set(maker "${CMAKE_SOURCE_DIR}/packaging/icon/make-icons")
  add_custom_command(
    OUTPUT "${file}"
    COMMAND Python3::Interpreter "${maker}" "${drawing}" "${file}"
    DEPENDS "${drawing}" "${maker}"
    COMMENT "Drawing ${file}"
    VERBATIM)
endfunction()
