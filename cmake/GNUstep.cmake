# GNUstep's AppKit, the window toolkit on Linux.
#
# gnustep carries what a target with .mm files needs. CMake compiles .mm as C++, and clang tells
# Objective-C++ by the suffix. Where GNUstep is missing, so is the target.

find_path(GNUSTEP_INCLUDE_DIR AppKit/AppKit.h PATH_SUFFIXES GNUstep)
find_library(GNUSTEP_GUI_LIBRARY gnustep-gui)
find_library(GNUSTEP_BASE_LIBRARY gnustep-base)
find_package(X11)
execute_process(COMMAND gcc -print-file-name=include
  OUTPUT_VARIABLE gcc_include_dir OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
execute_process(COMMAND gcc -print-file-name=libobjc.so
  OUTPUT_VARIABLE objc_library OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)

if(GNUSTEP_INCLUDE_DIR AND GNUSTEP_GUI_LIBRARY AND GNUSTEP_BASE_LIBRARY AND X11_FOUND
    AND EXISTS "${objc_library}")
  add_library(gnustep INTERFACE)
  target_compile_definitions(gnustep INTERFACE
    GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_GUI_LIBRARY=1 GNU_RUNTIME=1 _NATIVE_OBJC_EXCEPTIONS)
  target_compile_options(gnustep INTERFACE
    -fobjc-runtime=gcc -fexceptions -fobjc-exceptions -fno-strict-aliasing
    -fconstant-string-class=NSConstantString
    -Wno-unused-command-line-argument  # a .cpp among the .mm
    "SHELL:-isystem ${CMAKE_SOURCE_DIR}/app/gnustep/include"  # ahead of the next one, which it completes
    "SHELL:-isystem ${GNUSTEP_INCLUDE_DIR}" "SHELL:-idirafter ${gcc_include_dir}")
  target_link_options(gnustep INTERFACE -rdynamic)
  target_link_libraries(gnustep INTERFACE
    "${GNUSTEP_GUI_LIBRARY}" "${GNUSTEP_BASE_LIBRARY}" "${objc_library}" m)
endif()
