terranote_bench(journal LINKS terranote_platform)
target_include_directories(journal_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
