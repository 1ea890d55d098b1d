terranote_fuzz(catalogue LINKS terranote_maps)
target_include_directories(catalogue_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
