# A room is a folder with its own library, launcher_NAME. Its mac/ or linux/ holds the code of one
# platform. Nothing else chooses between the platforms.

if(APPLE)
  set(PLATFORM mac)
else()
  set(PLATFORM linux)
endif()

# Makes a library of the sources in this folder and in its platform's folder.
#
#   launcher_room(NAME [USES ROOM...])
#
# If the platform's folder has a CMakeLists.txt, that file adds the sources itself, usually with
# launcher_sources(NAME) and the libraries that they need.
function(launcher_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "USES")
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.mm)
  add_library(launcher_${name} STATIC ${sources})
  target_include_directories(launcher_${name} PUBLIC "${CMAKE_SOURCE_DIR}")
  list(TRANSFORM room_USES PREPEND launcher_)
  target_link_libraries(launcher_${name} PUBLIC ${room_USES} PRIVATE launcher_warnings)

  if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${PLATFORM}/CMakeLists.txt")
    add_subdirectory(${PLATFORM})
  else()
    launcher_sources(${name} ${PLATFORM}/)
  endif()
endfunction()

# Adds a folder's sources to a room's library. Without a folder, adds those of this folder.
#
#   launcher_sources(NAME [FOLDER/...])
function(launcher_sources name)
  set(folders ${ARGN})
  if(NOT folders)
    set(folders "./")
  endif()
  foreach(folder IN LISTS folders)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}*.cpp ${folder}*.mm)
    target_sources(launcher_${name} PRIVATE ${sources})
  endforeach()
endfunction()

# Finds a folder's tests for this platform: leaves out those of the other platform.
#
#   launcher_tests(VARIABLE FOLDER)
function(launcher_tests variable folder)
  # Match relative paths: a folder above the project may have a platform's name.
  file(GLOB_RECURSE tests CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}"
    ${folder}/*.cpp ${folder}/*.mm)
  set(others linux mac)
  list(REMOVE_ITEM others ${PLATFORM})
  list(FILTER tests EXCLUDE REGEX "/(${others}|children)/")
  set(${variable} ${tests} PARENT_SCOPE)
endfunction()
