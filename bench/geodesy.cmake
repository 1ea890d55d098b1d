# The roads of the geodesy floor, and the program that bench/geodesy_peers.sh runs beside two well-known tools.
terranote_bench(geodesy LINKS terranote_geodesy)
add_executable(geodesy_peer geodesy_peer.cpp)
target_link_libraries(geodesy_peer PRIVATE terranote_options terranote_geodesy)
