# launcher_toolkit is AppKit as the window's code knows it. Without a toolkit on the machine there is
# no such target; the logic and its tests are built all the same.

if(APPLE)
  find_library(APPKIT_FRAMEWORK AppKit)
  if(APPKIT_FRAMEWORK)
    add_library(launcher_toolkit INTERFACE)
    target_link_libraries(launcher_toolkit INTERFACE
      "-framework AppKit" "-framework CoreGraphics" "-framework QuartzCore"
      "-framework Foundation" "-framework CoreFoundation" objc)
  endif()
else()
  include(GNUstep)
  if(TARGET gnustep)
    add_subdirectory(app/gnustep)
    add_library(launcher_toolkit ALIAS appkit_likeness)
  endif()
endif()

if(NOT TARGET launcher_toolkit)
  message(STATUS "No window toolkit here: the application is left out")
endif()
