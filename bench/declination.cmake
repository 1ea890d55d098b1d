# The declination, and the program that bench/declination_peers.sh runs beside a well-known tool.
terranote_bench(declination LINKS terranote_observations)
target_compile_definitions(declination_bench PRIVATE
  TERRANOTE_COEFFICIENT_FOLDER="${CMAKE_SOURCE_DIR}/tests/golden/observations")
add_executable(declination_peer declination_peer.cpp)
target_link_libraries(declination_peer PRIVATE terranote_options terranote_observations)
