# Builds for macOS 11 on Linux with LLVM's tools and make-sysroot's folder.

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 20.0)
set(CMAKE_OSX_ARCHITECTURES arm64 x86_64)
set(CMAKE_OSX_DEPLOYMENT_TARGET 11.0)

# CMake's own test projects read this file too. By then the sysroot exists, and they use it.
set(MACOS_SYSROOT "${CMAKE_BINARY_DIR}/sysroot" CACHE PATH "What macOS offers to a build")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MACOS_SYSROOT)
get_property(within_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT within_try_compile)
  execute_process(COMMAND "${CMAKE_CURRENT_LIST_DIR}/make-sysroot" "${MACOS_SYSROOT}"
    COMMAND_ERROR_IS_FATAL ANY)
endif()
set(CMAKE_OSX_SYSROOT "${MACOS_SYSROOT}")

foreach(language C CXX)
  set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macos11.0)
  set(CMAKE_${language}_FLAGS_INIT "-B${MACOS_SYSROOT}/bin")
  # The plain archiver does not split objects of two architectures, and lld cannot read such an
  # archive.
  set(CMAKE_${language}_ARCHIVE_CREATE "llvm-libtool-darwin-19 -static -o <TARGET> <OBJECTS>")
  set(CMAKE_${language}_ARCHIVE_FINISH "")
endforeach()
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_AR llvm-ar-19)
set(CMAKE_RANLIB llvm-ranlib-19)
set(CMAKE_INSTALL_NAME_TOOL llvm-install-name-tool-19)
set(CMAKE_EXE_LINKER_FLAGS_INIT -fuse-ld=lld)

set(CMAKE_FIND_ROOT_PATH "${MACOS_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
