# Language level, warnings, sanitizers and the compiler cache, the same for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Programs and the component stand side by side in bin/, as they do when installed; so does the run-time data.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

add_library(tavrelion_options INTERFACE)
target_compile_options(tavrelion_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)
if(TAVRELION_SANITIZE)
  # The PDF library keeps the type information of some classes to itself, which the check "vptr" asks for.
  target_compile_options(tavrelion_options INTERFACE -fsanitize=${TAVRELION_SANITIZE} -fno-sanitize=vptr
    -fno-omit-frame-pointer)
  # What sanitizers put into the code keeps the compiler from seeing that a pointer is never null, a value always set.
  target_compile_options(tavrelion_options INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow;-Wno-maybe-uninitialized>)
  target_link_options(tavrelion_options INTERFACE -fsanitize=${TAVRELION_SANITIZE})
endif()
if(TAVRELION_BUILD_FUZZERS)
  target_compile_options(tavrelion_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(TAVRELION_COVERAGE)
  target_compile_options(tavrelion_options INTERFACE --coverage -O0)
  target_link_options(tavrelion_options INTERFACE --coverage)
endif()
