if(TERRANOTE_GUI)
  terranote_bench(registry_repaint LINKS terranote_ui)
  # The plain loop plays what the recorder of the tests kept.
  target_include_directories(registry_repaint_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
endif()
