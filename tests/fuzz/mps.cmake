terranote_fuzz(mps LINKS terranote_maps)
target_include_directories(mps_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
