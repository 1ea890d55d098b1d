terranote_fuzz(small_files LINKS terranote_observations)
target_include_directories(small_files_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
