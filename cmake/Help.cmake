# The pages in help/: plain HTML in ${CMAKE_BINARY_DIR}/help, and the help file of the program folder.
# Its compiler, chmcmd, comes with Free Pascal; where there is none, the pack is built without a help
# file.
file(GLOB help_pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/*.html)
file(GLOB help_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/*.hh?)
set(help_folder ${CMAKE_BINARY_DIR}/help)
add_custom_command(OUTPUT ${help_folder}/index.html
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${help_folder}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${help_folder}
  COMMAND ${CMAKE_COMMAND} -E copy ${help_pages} ${help_folder}
  # The time of the copy, so that it is newer than all pages.
  COMMAND ${CMAKE_COMMAND} -E touch ${help_folder}/index.html
  DEPENDS ${help_pages} COMMENT "Staging the pages of the help" VERBATIM)
add_custom_target(help-html ALL DEPENDS ${help_folder}/index.html)

find_program(CHMCMD chmcmd)
if(NOT CHMCMD)
  message(STATUS "chmcmd was not found: the pack is built without its help file")
  return()
endif()
set(help_work ${CMAKE_BINARY_DIR}/generated/help)
set(help_file ${CMAKE_BINARY_DIR}/pack/sk2pack.chm)
set(undate_help ${CMAKE_SOURCE_DIR}/scripts/undate-help.py)
find_program(SK2_PYTHON NAMES python3 python)
if(SK2_PYTHON)
  # Only then do the same pages give the same bytes.
  set(undate COMMAND ${SK2_PYTHON} ${undate_help} ${help_work}/sk2pack.chm)
endif()
add_custom_command(OUTPUT ${help_file}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${help_work}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${help_work}
  COMMAND ${CMAKE_COMMAND} -E copy ${help_pages} ${help_sources} ${help_work}
  # It looks for the pages in the current folder, and puts the help file there.
  COMMAND ${CMAKE_COMMAND} -E chdir ${help_work} ${CHMCMD} sk2pack.hhp
  ${undate}
  COMMAND ${CMAKE_COMMAND} -E copy ${help_work}/sk2pack.chm ${help_file}
  DEPENDS ${help_pages} ${help_sources} ${undate_help} COMMENT "Compiling the help" VERBATIM)
add_custom_target(help-file ALL DEPENDS ${help_file})
add_dependencies(sk2pack help-file)
