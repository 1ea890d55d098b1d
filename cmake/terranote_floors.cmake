# The floors of the house. A floor is a folder under src/ and a static library. Its headers are reached only through
# build/floors/<floor>/, so a floor sees the headers of what it links and of nothing else: an include that points
# upwards does not compile.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(terranote_options INTERFACE)
if(MSVC)
  target_compile_options(terranote_options INTERFACE /W4 /WX /utf-8 /permissive- /fp:precise)
else()
  # g++ 12 sees an overlap in `"text" + std::string` at -O3 that is not there (GCC bug 105651).
  target_compile_options(terranote_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
  # No fused multiply-add: the single and double arithmetic must give the same bits on every machine.
  target_compile_options(terranote_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                         -Woverloaded-virtual -Werror -ffp-contract=off)
endif()

# terranote_floor(<name> FOLDER <folder below src> [LINKS <floors and libraries>...])
function(terranote_floor name)
  cmake_parse_arguments(FLOOR "" "FOLDER" "LINKS" ${ARGN})
  set(folder ${CMAKE_SOURCE_DIR}/src/${FLOOR_FOLDER})
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${folder}/*.h)
  set(floor_headers ${CMAKE_BINARY_DIR}/floors/${name})
  foreach(header IN LISTS headers)
    get_filename_component(leaf ${header} NAME)
    # A relative path, so that the compiler cache knows the header again in another checkout.
    file(RELATIVE_PATH target ${floor_headers}/${FLOOR_FOLDER} ${header})
    file(CONFIGURE OUTPUT ${floor_headers}/${FLOOR_FOLDER}/${leaf} CONTENT "#include \"${target}\"\n")
  endforeach()
  if(sources)
    add_library(terranote_${name} STATIC ${sources} ${headers})
    target_include_directories(terranote_${name} PUBLIC ${floor_headers})
    target_link_libraries(terranote_${name} PRIVATE terranote_options PUBLIC ${FLOOR_LINKS})
  else()
    add_library(terranote_${name} INTERFACE)
    target_include_directories(terranote_${name} INTERFACE ${floor_headers})
    target_link_libraries(terranote_${name} INTERFACE ${FLOOR_LINKS})
  endif()
endfunction()
