# Where an installed program's files go, and the Debian package made of them: `cpack --preset deb` behind a release build.
#
# The program knows that it is installed by share/terranote/program beside its own folder (platform/user_folders), so
# these three are fixed: bin, libexec/terranote, share/terranote/program.
set(CMAKE_INSTALL_DOCDIR share/doc/terranote)
include(GNUInstallDirs)

install(TARGETS terranote RUNTIME DESTINATION bin)
install(TARGETS make_sample RUNTIME DESTINATION libexec/terranote)
install(PROGRAMS src/platform/qt/fill_sheet.py DESTINATION libexec/terranote)

# What every new program folder gets.
set(general ${CMAKE_BINARY_DIR}/general)
add_custom_command(OUTPUT ${general}/igrf10.coef ${general}/def.dbf
                   COMMAND make_sample --general ${general} VERBATIM)
add_custom_target(terranote_general ALL DEPENDS ${general}/igrf10.coef ${general}/def.dbf)
install(FILES ${general}/igrf10.coef ${general}/def.dbf DESTINATION share/terranote/program)

set(packaging ${CMAKE_SOURCE_DIR}/packaging)
install(FILES ${packaging}/terranote.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/localhost.terranote.terranote.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/icons/terranote.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES ${packaging}/icons/terranote_${size}.png RENAME terranote.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

# The pages that Debian wants compressed.
find_program(GZIP gzip)
if(GZIP)
  configure_file(${packaging}/changelog.in ${CMAKE_BINARY_DIR}/changelog @ONLY)
  configure_file(${packaging}/terranote.1.in ${CMAKE_BINARY_DIR}/terranote.1 @ONLY)
  foreach(page changelog terranote.1)
    add_custom_command(OUTPUT ${page}.gz DEPENDS ${page} COMMAND ${GZIP} -9nkf ${page}
                       WORKING_DIRECTORY ${CMAKE_BINARY_DIR} VERBATIM)
  endforeach()
  add_custom_target(terranote_pages ALL DEPENDS changelog.gz terranote.1.gz)
  install(FILES ${CMAKE_BINARY_DIR}/terranote.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${CMAKE_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${packaging}/lintian_overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME terranote)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME terranote)
set(CPACK_PACKAGE_CONTACT "Terranote developers <terranote@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "geological observations on scanned map sheets")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The texts of the toolkit's own windows; the Japanese ones are among them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n")
# Any font with Japanese letters will do. Input sheets and sounds are for those who use them.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-ipafont-gothic | fonts-japanese-gothic | fonts-noto-cjk, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libreoffice-calc, python3-uno, python3:any, alsa-utils | pulseaudio-utils")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Terranote is for field geologists and site-investigation engineers in Japan.
It joins scanned topographic sheets to a mosaic, draws observations on it
with strike and dip at true north, reads a digital clinometer and a GPS
receiver, plots stereonets and writes Shapefiles. Its texts are in Japanese
and in English.")
include(CPack)
