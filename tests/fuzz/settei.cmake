terranote_fuzz(settei LINKS terranote_core)
target_include_directories(settei_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
