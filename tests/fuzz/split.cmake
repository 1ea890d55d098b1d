terranote_fuzz(split LINKS terranote_drawing)
