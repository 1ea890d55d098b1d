terranote_fuzz(coefficients LINKS terranote_observations)
target_include_directories(coefficients_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
