terranote_fuzz(strike_dip LINKS terranote_observations)
target_include_directories(strike_dip_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
