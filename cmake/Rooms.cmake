# A room is a folder of sources that becomes one library target. What a room may use is what it links: a room that includes
# a header of another room without linking it does not link, and tests/rooms checks the includes themselves.

# orvane_room(<name> [LINK <targets>...] [PRIVATE_LINK <targets>...])
# The target orvane_<name> of every *.cpp in the current folder.
function(orvane_room name)
  cmake_parse_arguments(ARG "" "" "LINK;PRIVATE_LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  add_library(orvane_${name} STATIC ${sources})
  set_target_properties(orvane_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(orvane_${name} PUBLIC "${CMAKE_SOURCE_DIR}/engine")
  target_link_libraries(orvane_${name} PUBLIC ${ARG_LINK} PRIVATE tavrelion_options ${ARG_PRIVATE_LINK})
endfunction()

# tavrelion_room(<name> <folder> [LINK <targets>...] [PRIVATE_LINK <targets>...])
# The target tavrelion_<name> of every *.cpp and *.ui in <folder>. Sources that end in _posix or _win32 are for that system only.
function(tavrelion_room name folder)
  cmake_parse_arguments(ARG "" "" "LINK;PRIVATE_LINK" ${ARGN})
  set(root "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
  file(GLOB sources CONFIGURE_DEPENDS "${root}/*.cpp" "${root}/*.h" "${root}/*.ui")
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "_win32\\.cpp$")
  endif()
  add_library(tavrelion_${name} STATIC ${sources})
  set_target_properties(tavrelion_${name} PROPERTIES LINKER_LANGUAGE CXX AUTOMOC ON AUTOUIC ON)
  target_include_directories(tavrelion_${name} PUBLIC "${CMAKE_SOURCE_DIR}/app")
  target_link_libraries(tavrelion_${name} PUBLIC ${ARG_LINK} PRIVATE tavrelion_options ${ARG_PRIVATE_LINK})
endfunction()

# room_tests(<name> LINK <targets>...): one test program of every *.cpp in the current folder, its tests known to ctest.
function(room_tests name)
  cmake_parse_arguments(ARG "QT" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  add_executable(test_${name} ${sources})
  set_target_properties(test_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
  target_include_directories(test_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(test_${name} PRIVATE ${ARG_LINK} tavrelion_options GTest::gmock)
  if(ARG_QT)
    set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
    set(environment "QT_QPA_PLATFORM=offscreen")
  else()
    target_link_libraries(test_${name} PRIVATE GTest::gmock_main)
  endif()
  gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX "${name}."
                       PROPERTIES TIMEOUT 120 ENVIRONMENT "${environment}")
endfunction()
