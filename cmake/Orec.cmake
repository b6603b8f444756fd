# The recording library. For Windows: orec.dll, beside the program. Natively: what of it is the same
# on every machine, for the tests, which bring a machine of their own.
sk2_sources(orec_sources orec)
if(WIN32)
  string(REPLACE "." "," SK2_RC_VERSION "${PROJECT_VERSION},0")
  configure_file(orec/orec.rc.in ${CMAKE_BINARY_DIR}/generated/orec.rc @ONLY)
  add_library(orec SHARED ${orec_sources} orec/orec.def ${CMAKE_BINARY_DIR}/generated/orec.rc)
  target_link_options(orec PRIVATE -s)
  set_target_properties(orec PROPERTIES PREFIX ""
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/pack)
else()
  list(FILTER orec_sources EXCLUDE REGEX "/orec/win32/")
  add_library(orec STATIC ${orec_sources})
endif()
target_include_directories(orec PUBLIC ${CMAKE_SOURCE_DIR})
