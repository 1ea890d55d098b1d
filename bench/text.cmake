terranote_bench(text LINKS terranote_platform)
