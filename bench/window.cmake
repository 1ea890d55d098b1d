if(TERRANOTE_GUI)
  terranote_bench(window LINKS terranote_ui)
endif()
