# The shipped program, staged as it is installed, and the same program under other versions for the
# tests of its title.
#
# sk2_version_resource(NAME VERSION DESCRIPTION [KEY]): generated/NAME.rc with the pack's icon, manifest
# and sounds, and with the key that updates are signed with, the configured one if none is given. The
# target that it is linked to depends on "sounds".
function(sk2_version_resource name version description)
  set(key "${SK2_UPDATE_KEY_TEXT}")
  if(ARGC GREATER 3)
    set(key "${ARGV3}")
  endif()
  set(SK2_RC_UPDATE_KEY ${CMAKE_BINARY_DIR}/generated/${name}-key.txt)
  file(GENERATE OUTPUT ${SK2_RC_UPDATE_KEY} CONTENT "${key}\n")
  string(REPLACE "." "," SK2_RC_VERSION "${version},0")
  set(SK2_RC_VERSION_TEXT "${version}")
  set(SK2_RC_DESCRIPTION "${description}")
  set(SK2_RC_FILE "${name}.exe")
  set(resource ${CMAKE_BINARY_DIR}/generated/${name}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/resources/sk2pack.rc.in ${resource} @ONLY)
  set_source_files_properties(${resource} PROPERTIES
    INCLUDE_DIRECTORIES "${CMAKE_SOURCE_DIR}/resources;${SK2_SOUNDS}"
    OBJECT_DEPENDS "${SK2_RC_UPDATE_KEY};${CMAKE_SOURCE_DIR}/resources/sk2pack.manifest;${CMAKE_SOURCE_DIR}/resources/sk2pack.ico;${SK2_SOUNDS}/sounds.rc")
endfunction()

# sk2_pack(NAME VERSION DESCRIPTION [KEY]): an executable NAME.exe of the pack with that version and key.
function(sk2_pack name version description)
  sk2_version_resource(${name} ${version} ${description} ${ARGN})
  add_executable(${name} WIN32 src/app/Main.cpp ${CMAKE_BINARY_DIR}/generated/${name}.rc)
  target_link_libraries(${name} PRIVATE core machine)
  target_link_options(${name} PRIVATE -s)
  add_dependencies(${name} sounds)
endfunction()

file(GLOB languages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/languages/*.lng)
file(GLOB licences CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/licences/*)
sk2_pack(sk2pack ${PROJECT_VERSION} "Skidrun2 Utility Pack")
set_target_properties(sk2pack PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/pack LINK_DEPENDS "${languages}")
add_custom_command(TARGET sk2pack POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/pack/languages
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/pack/languages
  COMMAND ${CMAKE_COMMAND} -E copy ${languages} ${CMAKE_BINARY_DIR}/pack/languages
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_BINARY_DIR}/pack/LICENSE.txt
  # Of what others have written in it.
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/pack/licences
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/licences ${CMAKE_BINARY_DIR}/pack/licences)

add_dependencies(sk2pack orec)

set(versions ${CMAKE_BINARY_DIR}/versions)
sk2_pack(sk2alpha 0.0.7 "Skidrun2 Utility Pack")
sk2_pack(sk2beta 0.5.2 "Skidrun2 Utility Pack")
sk2_pack(sk2candidate 1.2.3 "Skidrun2 Utility Pack RC1")
# And one that takes only what the tests' own key has signed.
sk2_update_key(tests_key ${CMAKE_SOURCE_DIR}/tests/keys/maker-public.pem)
sk2_pack(sk2signed ${PROJECT_VERSION} "Skidrun2 Utility Pack" "${tests_key}")
set_target_properties(sk2alpha sk2beta sk2candidate sk2signed PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${versions})
