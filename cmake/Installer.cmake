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
    COMMAND ${MAKENSIS} -V2 -WX -NOCD -DVERSION=${version} -DFILES=${files} -DOUTPUT=${output}
      -DICON=${CMAKE_SOURCE_DIR}/resources/sk2pack.ico -DSITE=${SK2_MAKER_SITE}
      -X!addincludedir\ ${CMAKE_SOURCE_DIR}/installer ${CMAKE_SOURCE_DIR}/installer/sk2up.nsi
    DEPENDS ${name}-files ${files} ${installer_sources} ${CMAKE_SOURCE_DIR}/resources/sk2pack.ico
    COMMENT "Making ${output}" VERBATIM)
  add_custom_target(${name} ALL DEPENDS ${output})
endfunction()

set(staged sk2pack orec)
if(TARGET help-file)
  list(APPEND staged help-file)
endif()
sk2_installer(installer ${PROJECT_VERSION} ${CMAKE_BINARY_DIR}/pack ${CMAKE_BINARY_DIR}/sk2up.exe ${staged})
