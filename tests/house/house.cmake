# The build itself refuses an include that points upwards.
foreach(direction upward downward)
  add_library(house_${direction} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_SOURCE_DIR}/house/${direction}.cpp)
  target_link_libraries(house_${direction} PRIVATE terranote_options terranote_geodesy)
  add_test(NAME house_an_include_${direction}
           COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target house_${direction})
  set_tests_properties(house_an_include_${direction} PROPERTIES RUN_SERIAL ON)
endforeach()
set_tests_properties(house_an_include_upward PROPERTIES
  PASS_REGULAR_EXPRESSION "canvas\\.h.*(No such file|file not found|Cannot open)")

# Each promise of the conformance page names a test that is there.
if(UNIX)
  add_test(NAME house_conformance COMMAND ${CMAKE_SOURCE_DIR}/tools/shell/check_conformance)
endif()
