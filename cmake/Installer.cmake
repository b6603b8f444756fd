# The installer, from the staged program folder. Its compiler, makensis, is that of the package nsis;
# where there is none, the pack is built without an installer.
find_program(MAKENSIS makensis)
if(NOT MAKENSIS)
  message(STATUS "makensis was not found: the pack is built without its installer")
  return()
endif()

file(GLOB installer_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/installer/*)

# sk2_installer(NAME VERSION FOLDER OUTPUT TARGET...): the target NAME, which makes the installer OUTPUT
# of a program folder when the given targets have staged it.
function(sk2_installer name version folder output)
  set(files ${CMAKE_BINARY_DIR}/generated/${name}.nsh)
  # Each time, since only then what is in the folder is known.
  add_custom_target(${name}-files
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${folder} -DOUTPUT=${files} -P ${CMAKE_SOURCE_DIR}/installer/Files.cmake
    BYPRODUCTS ${files} VERBATIM)
  add_dependencies(${name}-files ${ARGN})
  add_custom_command(OUTPUT ${output}
    COMMAND ${MAKENSIS} -V2 -WX -NOCD -DVERSION=${version} -DFILES=${files} -DOUTPUT=${output}.part
      -DICON=${CMAKE_SOURCE_DIR}/resources/sk2pack.ico -DSITE=${SK2_MAKER_SITE}
      -X!addincludedir\ ${CMAKE_SOURCE_DIR}/installer ${CMAKE_SOURCE_DIR}/installer/sk2up.nsi
    # Half an installer, of a build that was broken off, must not pass for one.
    COMMAND ${CMAKE_COMMAND} -E rename ${output}.part ${output}
    DEPENDS ${name}-files ${files} ${installer_sources} ${CMAKE_SOURCE_DIR}/resources/sk2pack.ico
    COMMENT "Making ${output}" VERBATIM)
  add_custom_target(${name} ALL DEPENDS ${output})
endfunction()

set(staged sk2pack orec)
if(TARGET help-file)
  list(APPEND staged help-file)
endif()
sk2_installer(installer ${PROJECT_VERSION} ${CMAKE_BINARY_DIR}/pack ${CMAKE_BINARY_DIR}/sk2up.exe ${staged})

# For the tests: the next version with a language besides English, its installer, and one that says of
# itself to be of another version than what is in it.
math(EXPR next_revision "${PROJECT_VERSION_PATCH} + 1")
set(next ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${next_revision})
sk2_pack(sk2next ${next} "Skidrun2 Utility Pack")
set_target_properties(sk2next PROPERTIES OUTPUT_NAME sk2pack RUNTIME_OUTPUT_DIRECTORY ${versions}/next)
add_dependencies(sk2next ${staged})
# Before its own program comes to the rest of the folder.
add_custom_command(TARGET sk2next PRE_LINK
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_BINARY_DIR}/pack ${versions}/next
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/e2e/languages/Deutsch.lng ${versions}/next/languages/Deutsch.lng)
sk2_installer(next-installer ${next} ${versions}/next ${versions}/sk2up-next.exe sk2next)
math(EXPR false_revision "${PROJECT_VERSION_PATCH} + 2")
sk2_installer(false-installer ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${false_revision}
  ${versions}/next ${versions}/sk2up-false.exe sk2next)
