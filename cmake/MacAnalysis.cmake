# The target `analysis` runs LLVM's static analyzer on every macOS source. It checks reference counts,
# null and Cocoa's rules in each function. A finding is an error. A file is analysed again when it or
# one of its headers changes. The sources are the same for every architecture, so one is enough.

set(MAC_CHECKERS nullability,osx)

foreach(room base process net discovery controller viewer app)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${room}/mac/*.mm"
    "${CMAKE_SOURCE_DIR}/${room}/mac/*.cpp")
  list(APPEND analysed ${sources})
endforeach()

foreach(source IN LISTS analysed)
  cmake_path(RELATIVE_PATH source BASE_DIRECTORY "${CMAKE_SOURCE_DIR}" OUTPUT_VARIABLE name)
  set(mark "${CMAKE_BINARY_DIR}/analysis/${name}")
  cmake_path(GET mark PARENT_PATH folder)
  file(MAKE_DIRECTORY "${folder}")
  add_custom_command(OUTPUT "${mark}" DEPENDS "${source}" DEPFILE "${mark}.d"
    COMMAND "${CMAKE_CXX_COMPILER}" --analyze "--target=${CMAKE_CXX_COMPILER_TARGET}"
            -isysroot "${CMAKE_OSX_SYSROOT}" "-I${CMAKE_SOURCE_DIR}" -std=c++20 -fobjc-weak
            -Xclang -analyzer-output=text -Xclang -analyzer-werror
            -Xclang "-analyzer-checker=${MAC_CHECKERS}"
            -MD -MF "${mark}.d" -MT "${mark}" -o "${mark}.findings" "${source}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${mark}"
    COMMENT "Analysing ${name}" VERBATIM)
  list(APPEND marks "${mark}")
endforeach()

add_custom_target(analysis DEPENDS ${marks})
