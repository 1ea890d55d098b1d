terranote_fuzz(set_file LINKS terranote_maps)
target_include_directories(set_file_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
