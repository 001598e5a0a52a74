# Every suite. CONTRIBUTING.md says what each one checks.

set(lint "${CMAKE_SOURCE_DIR}/tests/lint")
launcher_python_test(strings tests/strings)
launcher_python_test(icon tests/icon)
launcher_python_test(scripts tests/scripts)
launcher_test(unit BUILDS unit-tests COMMAND "$<TARGET_FILE:unit-tests>")
launcher_test(unit NAME diagnostics BUILDS diagnostics-tests COMMAND "$<TARGET_FILE:diagnostics-tests>")
launcher_test(contract APART BUILDS contract-tests COMMAND "$<TARGET_FILE:contract-tests>")
if(TARGET appkit-window-tests)
  launcher_test(window NAME appkit DISPLAY BUILDS appkit-window-tests COMMAND "$<TARGET_FILE:appkit-window-tests>")
endif()
if(TARGET qt-window-tests)
  launcher_test(window NAME qt BUILDS qt-window-tests COMMAND "$<TARGET_FILE:qt-window-tests>")
endif()

# The suites below drive an X display, or check on Linux what a Mac checks by itself.
if(APPLE)
  return()
endif()

launcher_test(lint NAME format COMMAND "${lint}/format")
launcher_test(lint NAME shell COMMAND "${lint}/shell")
launcher_test(lint NAME arrows COMMAND "${lint}/arrows.py")
launcher_test(lint NAME tidy COMMAND "${lint}/tidy.py" app base controller discovery net process viewer)
launcher_test(lint-tests BY_NAME COMMAND "${lint}/tidy.py" tests bench)
launcher_python_test(bench tests/bench)
launcher_test(endurance APART BUILDS endurance-tests COMMAND "$<TARGET_FILE:endurance-tests>")
launcher_python_test(e2e tests/e2e DISPLAY BUILDS application e2e-doubles)
launcher_python_test(starts tests/e2e PATTERN starts.py BY_NAME DISPLAY BUILDS application e2e-doubles)
launcher_python_test(bundle tests/portable BUILDS application)
launcher_test(portable BY_NAME BUILDS application COMMAND "${CMAKE_SOURCE_DIR}/tests/portable/run")
launcher_python_test(macos tests/macos)

# The macOS sources on GNUstep's Foundation, without the tests that GNUstep itself fails.
if(TARGET appkit_stand_in)
  file(STRINGS foundation/beyond-gnustep beyond_gnustep REGEX "^[A-Z]")
  list(TRANSFORM beyond_gnustep REPLACE " .*" "")
  list(JOIN beyond_gnustep ":" beyond_gnustep)
  launcher_test(macos NAME foundation APART PRESET asan ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0"
    COMMAND "${CMAKE_SOURCE_DIR}/build/asan/tests/foundation/foundation-tests"
            "--gtest_filter=-${beyond_gnustep}")
endif()

# Runs the tests again in builds that watch memory and threads. The platform's libraries free little
# at exit; do not report those leaks, since they are not ours.
set(asan "ASAN_OPTIONS=detect_leaks=1"
  "LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/sanitizers/leaks.txt:print_suppressions=0")
set(tsan "TSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/sanitizers/races.txt")
foreach(preset asan tsan)
  foreach(program unit-tests contract-tests)
    launcher_test(sanitizers NAME ${preset}.${program} APART PRESET ${preset} ENVIRONMENT ${${preset}}
      COMMAND "${CMAKE_SOURCE_DIR}/build/${preset}/tests/${program}")
  endforeach()
endforeach()

# Toolkits free little at exit, so do not look for leaks. Toolkits are not built with sanitizers, so
# the thread sanitizer sees only the locks of their threads.
set(asan ASAN_OPTIONS=detect_leaks=0)
set(tsan TSAN_OPTIONS=ignore_noninstrumented_modules=1)
foreach(preset asan tsan)
  foreach(program appkit-window-tests qt-window-tests)
    launcher_test(sanitizers-window NAME ${preset}.${program} BY_NAME DISPLAY PRESET ${preset}-window
      ENVIRONMENT ${${preset}} COMMAND "${CMAKE_SOURCE_DIR}/build/${preset}/tests/${program}")
  endforeach()
endforeach()

# Use the same inputs each time, so that only a change of the code changes the result. script/fuzz makes
# up others.
file(GLOB targets CONFIGURE_DEPENDS fuzz/*.cpp)
foreach(source IN LISTS targets)
  cmake_path(GET source STEM target)
  launcher_test(fuzz NAME ${target} PRESET asan
    COMMAND "${CMAKE_SOURCE_DIR}/tests/fuzz/run" ${target} "${CMAKE_BINARY_DIR}/results/learnt/${target}"
            -seed=1 -runs=30000)
endforeach()

# A first run does not know yet which tests are slow. Start those that mostly wait during the builds.
set_tests_properties(e2e PROPERTIES COST 900)
set_tests_properties(lint.tidy PROPERTIES COST 800)
