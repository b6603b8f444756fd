# sk2_sources(VARIABLE FOLDER): all .cpp files below a folder. The list is made anew when a file
# comes or goes, so that it cannot fall behind.
function(sk2_sources variable folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()
