# The soak test: drives the real window at random (soak/main.cpp). Not a part of the tests; only its rules are tested.
if(UNIX)
  find_package(Qt6 REQUIRED COMPONENTS Test Widgets)
  add_library(terranote_soak STATIC soak/field_kit.cpp soak/file_book.cpp soak/memory_curve.cpp soak/project_check.cpp
              soak/registry_rules.cpp soak/run_log.cpp soak/texts.cpp soak/watchdog.cpp)
  target_link_libraries(terranote_soak PRIVATE terranote_options PUBLIC terranote_emulator_gps terranote_ui)
  target_compile_definitions(terranote_soak PRIVATE
    SOAK_RECEIVER_LOG="${CMAKE_CURRENT_SOURCE_DIR}/emulator_gps/sample_drive.nmea")

  add_executable(soak soak/days.cpp soak/driver.cpp soak/hand.cpp soak/main.cpp soak/noise.cpp soak/place.cpp
                 soak/ports.cpp)
  target_link_libraries(soak PRIVATE terranote_options terranote_soak Qt6::Test)
  add_dependencies(soak make_sample)

  if(TERRANOTE_TESTS)
    find_package(GTest REQUIRED)
    add_executable(soak_rules_test soak/tests/file_book_test.cpp soak/tests/memory_curve_test.cpp
                   soak/tests/registry_rules_test.cpp soak/tests/watchdog_test.cpp)
    target_link_libraries(soak_rules_test PRIVATE terranote_test_support terranote_soak GTest::gmock_main)
    add_test(NAME soak_rules COMMAND soak_rules_test)
    set_tests_properties(soak_rules PROPERTIES TIMEOUT 300)
  endif()
endif()
