# The script of platform/qt/qt_sheets lies beside the program, in the build tree as in a program folder.
configure_file(${CMAKE_SOURCE_DIR}/src/platform/qt/fill_sheet.py ${CMAKE_BINARY_DIR}/src/fill_sheet.py COPYONLY)
