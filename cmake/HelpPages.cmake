# cmake --build --preset host --target help-pages: writes those pages of the help anew that tell of
# the program's own windows, menus and keys, with contents and index. A test compares them.
if(NOT WIN32)
  sk2_sources(help_generator_sources help/generator)
  list(FILTER help_generator_sources EXCLUDE REGEX "/MakeHelp\\.cpp$")
  add_library(help-generator STATIC EXCLUDE_FROM_ALL ${help_generator_sources})
  target_include_directories(help-generator PRIVATE ${CMAKE_SOURCE_DIR})
  target_link_libraries(help-generator PUBLIC core machine)
  add_executable(make-help EXCLUDE_FROM_ALL help/generator/MakeHelp.cpp)
  target_include_directories(make-help PRIVATE ${CMAKE_SOURCE_DIR})
  target_link_libraries(make-help PRIVATE help-generator)
  add_custom_target(help-pages COMMAND make-help ${CMAKE_SOURCE_DIR}/help VERBATIM)
endif()
