# cmake --build --preset host --target template: writes languages/template.lng anew from the tables
# of texts. A test compares the two.
if(NOT WIN32)
  add_executable(make-template EXCLUDE_FROM_ALL languages/MakeTemplate.cpp)
  target_link_libraries(make-template PRIVATE core machine)
  set(template ${CMAKE_BINARY_DIR}/generated/template.lng)
  add_custom_target(template
    COMMAND make-template ${template}
    COMMAND ${CMAKE_COMMAND} -E copy ${template} ${CMAKE_SOURCE_DIR}/languages/template.lng
    VERBATIM)
endif()
