# The help file of the program folder, from the pages in help/. Its compiler, chmcmd, comes with Free
# Pascal; where there is none, the pack is built without help.
find_program(CHMCMD chmcmd)
if(NOT CHMCMD)
  message(STATUS "chmcmd was not found: the pack is built without its help file")
  return()
endif()
file(GLOB help_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/*)
set(help_folder ${CMAKE_BINARY_DIR}/help)
set(help_file ${CMAKE_BINARY_DIR}/pack/sk2pack.chm)
add_custom_command(OUTPUT ${help_file}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${help_folder}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/help ${help_folder}
  # It looks for the pages in the current folder, and puts the help file there.
  COMMAND ${CMAKE_COMMAND} -E chdir ${help_folder} ${CHMCMD} sk2pack.hhp
  COMMAND ${CMAKE_COMMAND} -E copy ${help_folder}/sk2pack.chm ${help_file}
  DEPENDS ${help_sources} COMMENT "Compiling the help" VERBATIM)
add_custom_target(help-file ALL DEPENDS ${help_file})
add_dependencies(sk2pack help-file)
