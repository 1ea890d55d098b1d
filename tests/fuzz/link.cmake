terranote_fuzz(link LINKS terranote_observations)
target_include_directories(link_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
