# A suite is a CTest label: ctest -L '^unit$' builds what the suite needs and runs it.
#
#   launcher_test(SUITE [NAME name]   names this test if the suite has several
#                 [APART | DISPLAY]   apart from the machine's processes; DISPLAY adds a display
#                 [BY_NAME]           takes minutes: runs only if it is named (ctest -C by-name)
#                 [BUILDS target...]  the targets that it needs in this build
#                 [PRESET preset]     needs this preset's build with the targets that it names
#                 [ENVIRONMENT variable=value...]
#                 COMMAND command...)
#
# GoogleTest and pytest write a record into build/results, from which tests/runner/summary.py counts
# each test.
function(launcher_test suite)
  cmake_parse_arguments(PARSE_ARGV 1 test
    "APART;DISPLAY;BY_NAME" "NAME;PRESET" "BUILDS;ENVIRONMENT;COMMAND")
  string(JOIN "." name ${suite} ${test_NAME})

  set(apart)
  if(test_DISPLAY)
    set(apart "${CMAKE_SOURCE_DIR}/tests/runner/apart.py" --display)
  elseif(test_APART)
    set(apart "${CMAKE_SOURCE_DIR}/tests/runner/apart.py")
  endif()
  set(only)
  if(test_BY_NAME)
    set(only CONFIGURATIONS by-name)
  endif()
  add_test(NAME ${name} COMMAND ${apart} ${test_COMMAND} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}" ${only})

  foreach(target IN LISTS test_BUILDS)
    launcher_build_step(${target} "${CMAKE_COMMAND}" --build "${CMAKE_BINARY_DIR}" --target ${target})
    set_tests_properties(build.${target} PROPERTIES COST 1000)  # runs before the builds of other presets
  endforeach()
  if(test_PRESET)
    launcher_build_step(${test_PRESET} "${CMAKE_COMMAND}" --workflow --preset ${test_PRESET})
  endif()

  set(record "${CMAKE_BINARY_DIR}/results/${name}.xml")
  set_tests_properties(${name} PROPERTIES
    LABELS ${suite}
    TIMEOUT 1800
    SKIP_RETURN_CODE 77
    FIXTURES_REQUIRED "${test_BUILDS};${test_PRESET}"
    ENVIRONMENT "GTEST_OUTPUT=xml:${record};GTEST_BRIEF=1;PYTEST_ADDOPTS=--junitxml=${record};${test_ENVIRONMENT}")
endfunction()

# A test that builds something; the tests that need it run after it. Builds run one at a time, each
# on all processors.
function(launcher_build_step name)
  if(NOT TEST build.${name})
    add_test(NAME build.${name} COMMAND ${ARGN} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}" ${only})
    set_tests_properties(build.${name} PROPERTIES
      FIXTURES_SETUP ${name} RESOURCE_LOCK build TIMEOUT 3600)
  endif()
endfunction()

# A suite, or part of one, that is a folder of Python tests. PATTERN names the files (default:
# *_test.py); the rest is as above.
find_program(PYTEST NAMES pytest-3 pytest)
function(launcher_python_test suite folder)
  cmake_parse_arguments(PARSE_ARGV 2 test "" "PATTERN" "")
  if(NOT test_PATTERN)
    set(test_PATTERN "*_test.py")
  endif()
  launcher_test(${suite} ${test_UNPARSED_ARGUMENTS}
    ENVIRONMENT "PYTHONPATH=${CMAKE_SOURCE_DIR}/script/lib" PYTHONDONTWRITEBYTECODE=1
    COMMAND "${PYTEST}" -q -p no:cacheprovider -o "python_files=${test_PATTERN}" "${folder}")
endfunction()
