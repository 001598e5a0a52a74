# Compiler settings for our own code: every warning is an error.

add_library(launcher_warnings INTERFACE)
target_compile_options(launcher_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Wnull-dereference -Werror)
