# cmake --build --preset host --target template: writes languages/template.lng anew from the tables
# of texts. A test compares the two.
if(NOT WIN32)
  add_executable(make-template EXCLUDE_FROM_ALL languages/MakeTemplate.cpp)
  target_link_libraries(make-template PRIVATE core machine)
  add_custom_target(template
    COMMAND sh -c "$<TARGET_FILE:make-template> > ${CMAKE_SOURCE_DIR}/languages/template.lng"
    DEPENDS make-template VERBATIM)
endif()
