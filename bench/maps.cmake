terranote_bench(maps LINKS terranote_maps)
target_include_directories(maps_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
