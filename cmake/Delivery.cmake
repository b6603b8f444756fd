# cmake --build --preset windows --target delivery: what a release consists of, in
# ${CMAKE_BINARY_DIR}/delivery: the installer, the portable copy, the tools for authors, the help as
# plain HTML, and the SHA-256 sums of all. What is not built here is left out. The same sources give
# the same bytes, wherever and whenever they are built.
if(NOT SK2_PYTHON)
  message(STATUS "python3 was not found: there is no target for a delivery")
  return()
endif()
set(delivered --pack ${CMAKE_BINARY_DIR}/pack --help-pages ${CMAKE_BINARY_DIR}/help)
set(delivered_targets sk2pack orec help-html)
if(TARGET help-file)
  list(APPEND delivered_targets help-file)
endif()
if(TARGET installer)
  list(APPEND delivered --installer ${CMAKE_BINARY_DIR}/sk2up.exe)
  list(APPEND delivered_targets installer)
endif()
foreach(tool sk2check sk2publish)
  if(TARGET ${tool})
    list(APPEND delivered --tool $<TARGET_FILE:${tool}>)
    list(APPEND delivered_targets ${tool})
  endif()
endforeach()
# Each time, because only then what is in the folders is known.
add_custom_target(delivery ALL
  COMMAND ${SK2_PYTHON} ${CMAKE_SOURCE_DIR}/scripts/make-delivery.py ${delivered}
    --version ${PROJECT_VERSION} --date ${SK2_RELEASE_DATE} ${CMAKE_BINARY_DIR}/delivery
  COMMENT "Making the delivery" VERBATIM)
add_dependencies(delivery ${delivered_targets})
