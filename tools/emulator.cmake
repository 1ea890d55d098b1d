# The instruments of the tests, behind pseudo-terminals: emulators for a shell, and their parts as a library for tests
# that play a conversation themselves.
if(UNIX)
  find_package(Threads REQUIRED)
  add_library(terranote_emulator STATIC emulator/conversation.cpp emulator/program.cpp
              emulator/pseudo_terminal.cpp emulator_clinometer/clinometer_memory.cpp)
  target_include_directories(terranote_emulator PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(terranote_emulator PRIVATE terranote_options PUBLIC Threads::Threads)

  add_executable(emulator_clinometer emulator_clinometer/main.cpp)
  target_link_libraries(emulator_clinometer PRIVATE terranote_options terranote_emulator)

  # The serial lines through the toolkit, with the emulators at their far ends: emulator/tests/*.cpp.
  if(TERRANOTE_TESTS)
    find_package(GTest REQUIRED)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    file(GLOB emulator_tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/emulator/tests/*.cpp)
    add_executable(serial_test ${CMAKE_SOURCE_DIR}/tests/gui/main.cpp ${emulator_tests})
    target_link_libraries(serial_test PRIVATE terranote_test_support terranote_emulator terranote_ui Qt6::Test)
    add_test(NAME serial COMMAND serial_test)
    set_tests_properties(serial PROPERTIES TIMEOUT 300)
  endif()
endif()
