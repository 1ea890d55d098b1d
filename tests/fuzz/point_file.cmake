terranote_fuzz(point_file LINKS terranote_observations)
target_include_directories(point_file_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
