terranote_fuzz(tky2jgd LINKS terranote_geodesy)
