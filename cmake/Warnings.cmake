# The warnings for our own code.

option(LAUNCHER_WARNINGS_AS_ERRORS "Make a warning in our own code an error" OFF)

add_library(launcher_warnings INTERFACE)
target_compile_options(launcher_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Wnull-dereference
  -Wreserved-identifier $<$<BOOL:${LAUNCHER_WARNINGS_AS_ERRORS}>:-Werror>)

# Our designated initialisers name only the members that differ from the defaults. Newer compilers
# warn about that.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-Wmissing-designated-field-initializers WARNS_OF_DEFAULTS)
if(WARNS_OF_DEFAULTS)
  target_compile_options(launcher_warnings INTERFACE -Wno-missing-designated-field-initializers)
endif()

# The cross-build's declarations are ours, so their annotations are exactly what we want checked.
if(APPLE AND CMAKE_CROSSCOMPILING)
  target_compile_options(launcher_warnings INTERFACE
    -Wnullable-to-nonnull-conversion -Wunguarded-availability)
endif()
