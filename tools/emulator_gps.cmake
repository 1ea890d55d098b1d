# A GPS receiver behind a pseudo-terminal: an emulator for a shell, and its parts as a library for tests.
if(UNIX)
  add_library(terranote_emulator_gps STATIC emulator_gps/receiver_log.cpp)
  target_link_libraries(terranote_emulator_gps PRIVATE terranote_options PUBLIC terranote_emulator)
  add_executable(emulator_gps emulator_gps/main.cpp)
  target_link_libraries(emulator_gps PRIVATE terranote_options terranote_emulator_gps)

  # The receiver's tick through a real serial line, with the emulator at its far end.
  if(TERRANOTE_TESTS)
    find_package(GTest REQUIRED)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    add_executable(receiver_test ${CMAKE_SOURCE_DIR}/tests/gui/main.cpp emulator_gps/tests/receiver_log_test.cpp
                   emulator_gps/tests/receiver_line_test.cpp)
    target_link_libraries(receiver_test PRIVATE terranote_test_support terranote_emulator_gps terranote_ui Qt6::Test)
    add_test(NAME receiver COMMAND receiver_test)
    set_tests_properties(receiver PROPERTIES TIMEOUT 300)
  endif()
endif()
