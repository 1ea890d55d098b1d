terranote_fuzz(measurements LINKS terranote_instruments)
target_include_directories(measurements_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
