terranote_fuzz(registry LINKS terranote_observations)
target_include_directories(registry_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
