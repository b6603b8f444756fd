# cmake --build --target check: the layout of the code, and what clang-tidy finds in it.
find_program(CLANG_FORMAT clang-format)
find_program(RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
file(GLOB_RECURSE formatted CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/*.h ${CMAKE_SOURCE_DIR}/src/*.cpp
  ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/tests/*.cpp
  ${CMAKE_SOURCE_DIR}/e2e/*.h ${CMAKE_SOURCE_DIR}/e2e/*.cpp
  ${CMAKE_SOURCE_DIR}/bench/*.h ${CMAKE_SOURCE_DIR}/bench/*.cpp
  ${CMAKE_SOURCE_DIR}/fuzz/*.h ${CMAKE_SOURCE_DIR}/fuzz/*.cpp)
if(CLANG_FORMAT)
  add_custom_target(check-format
    COMMAND ${CLANG_FORMAT} --dry-run --Werror ${formatted} VERBATIM)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${formatted} VERBATIM)
endif()
if(RUN_CLANG_TIDY AND NOT WIN32)
  add_custom_target(check-tidy
    # clang does not know all warnings that g++ is told about.
    COMMAND ${RUN_CLANG_TIDY} -quiet -extra-arg=-Wno-unknown-warning-option -p ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR}/src/ VERBATIM)
endif()
add_custom_target(check)
foreach(part check-format check-tidy)
  if(TARGET ${part})
    add_dependencies(check ${part})
  endif()
endforeach()
