# make_sample: the sample's program folder and project, all made from one model of the ground. The model is a library of
# its own, so that benchmarks, and later makers of logs and grids, use it without the painting.
add_library(terranote_ground STATIC make_sample/streams.cpp make_sample/topography.cpp make_sample/strata.cpp)
target_include_directories(terranote_ground PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(terranote_ground PRIVATE terranote_options)
# Tens of millions of pixels are worked out one by one; a daily build shall not make ./run wait for them.
set(sample_speed $<$<NOT:$<CXX_COMPILER_ID:MSVC>>:-O2>)
target_compile_options(terranote_ground PRIVATE ${sample_speed})

find_package(Qt6 6.4 REQUIRED COMPONENTS Gui)
find_package(Threads REQUIRED)
add_library(terranote_sample STATIC
  make_sample/border.cpp make_sample/course.cpp make_sample/folders.cpp make_sample/labels.cpp
  make_sample/land_picture.cpp make_sample/names.cpp make_sample/observations.cpp make_sample/palette.cpp
  make_sample/place.cpp make_sample/relief.cpp make_sample/roads.cpp make_sample/settlements.cpp
  make_sample/sheet_painter.cpp make_sample/tables.cpp make_sample/waters.cpp)
target_link_libraries(terranote_sample PRIVATE terranote_options
                      PUBLIC terranote_ground terranote_geodesy terranote_exchange Qt6::Gui Threads::Threads)
target_compile_options(terranote_sample PRIVATE ${sample_speed})

add_executable(make_sample make_sample/main.cpp)
target_link_libraries(make_sample PRIVATE terranote_options terranote_sample)

if(TERRANOTE_TESTS)
  find_package(GTest REQUIRED)
  add_executable(make_sample_test
    make_sample/tests/folders_test.cpp make_sample/tests/ground_test.cpp make_sample/tests/main.cpp
    make_sample/tests/observations_test.cpp make_sample/tests/place_test.cpp make_sample/tests/registry_test.cpp)
  target_link_libraries(make_sample_test PRIVATE terranote_options terranote_sample terranote_observations
                        GTest::gtest)
  target_include_directories(make_sample_test PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  add_test(NAME make_sample COMMAND make_sample_test)
  set_tests_properties(make_sample PROPERTIES TIMEOUT 300)
endif()
