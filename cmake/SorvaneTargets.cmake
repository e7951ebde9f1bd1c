# One static library a folder, one test program a room. Warnings and sanitizers come from the presets.
option(SORVANE_TESTS "Build the tests" ON)
option(SORVANE_BENCH "Build the benchmarks" OFF)
option(SORVANE_FUZZ "Build the fuzz targets (needs clang)" OFF)
# Test sources are compiled once for each change and run for seconds: compiling them fast is worth more.
set(SORVANE_TEST_OPTIONS "" CACHE STRING "Compiler options of test sources only")

# sorvane_library(name SOURCES file... [LINKS lib...]): product code, without exceptions and RTTI.
function(sorvane_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_compile_options(${name} PRIVATE -fno-exceptions -fno-rtti)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# sorvane_test(name SOURCES file... [LINKS lib...] [DESKTOPS count]): one GoogleTest program. Natively each
# test is a test of its own for CTest; on Windows (run through the emulator of the toolchain) each program
# is one. One that needs the mouse runs on a desktop of its own; on several its tests are dealt out.
function(sorvane_test name)
  cmake_parse_arguments(ARG "" "DESKTOPS" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  # As the product: a window's type information is nowhere to be linked from.
  target_compile_options(${name} PRIVATE -fno-rtti ${SORVANE_TEST_OPTIONS})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gtest_main)
  if(WIN32)
    target_link_options(${name} PRIVATE -static)
    if(ARG_DESKTOPS)
      sorvane_desktop_tests(${name} ${ARG_DESKTOPS})
    else()
      add_test(NAME windows.${name} COMMAND ${name})
      set_tests_properties(windows.${name} PROPERTIES LABELS windows)
    endif()
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES LABELS native)
  endif()
endfunction()

# The tests of one program on `count` desktops. They wait more than they work and take longest, so they
# are started first.
function(sorvane_desktop_tests name count)
  foreach(number RANGE 1 ${count})
    math(EXPR index "${number} - 1")
    add_test(NAME windows.${name}.${number}
      COMMAND "${PROJECT_SOURCE_DIR}/scripts/on_desktop.sh" ${name}-${number} $<TARGET_FILE:${name}>)
    set_tests_properties(windows.${name}.${number} PROPERTIES LABELS windows COST 1000
      ENVIRONMENT "GTEST_TOTAL_SHARDS=${count};GTEST_SHARD_INDEX=${index}")
  endforeach()
endfunction()

# sorvane_fuzz(fuzz_NAME SOURCES file... [LINKS lib...]): one libFuzzer target. Its seeds lie in
# fuzz/corpus/fuzz_NAME; `./run fuzz` runs all targets. Without the fuzzer it is a test that runs over
# its seeds.
function(sorvane_fuzz name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${ARG_LINKS})
  # As the libraries: the sanitizer would ask for type records that they do not have.
  target_compile_options(${name} PRIVATE -fno-rtti)
  if(SORVANE_FUZZ)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  else()
    target_sources(${name} PRIVATE $<TARGET_OBJECTS:fuzz_replay>)
    target_compile_options(${name} PRIVATE ${SORVANE_TEST_OPTIONS})
    add_test(NAME fuzz.${name} COMMAND ${name} "${PROJECT_SOURCE_DIR}/fuzz/corpus/${name}")
    set_tests_properties(fuzz.${name} PROPERTIES LABELS native)
  endif()
endfunction()
