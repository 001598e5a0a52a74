# launcher_toolkit is the window toolkit: AppKit on macOS, Qt on Linux. If the machine lacks it,
# there is no such target, but the logic and its tests still build.

if(APPLE)
  find_library(APPKIT_FRAMEWORK AppKit)
  if(APPKIT_FRAMEWORK)
    add_library(launcher_toolkit INTERFACE)
    target_link_libraries(launcher_toolkit INTERFACE
      "-framework AppKit" "-framework CoreGraphics" "-framework QuartzCore"
      "-framework Foundation" "-framework CoreFoundation" objc)
  endif()
else()
  find_package(Qt6 QUIET COMPONENTS Widgets)
  if(TARGET Qt6::Widgets)
    add_library(launcher_toolkit INTERFACE)
    target_link_libraries(launcher_toolkit INTERFACE Qt6::Widgets)
    target_compile_definitions(launcher_toolkit INTERFACE
      QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
  endif()
endif()

if(NOT TARGET launcher_toolkit)
  message(STATUS "No window toolkit here: the application is left out")
endif()
