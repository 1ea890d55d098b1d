terranote_fuzz(journal LINKS terranote_platform)
target_include_directories(journal_fuzz PRIVATE ${CMAKE_SOURCE_DIR}/tests)
