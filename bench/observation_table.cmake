if(TERRANOTE_GUI)
  terranote_bench(observation_table LINKS terranote_ui)
endif()
