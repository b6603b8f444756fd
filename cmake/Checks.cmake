# cmake --build --target check: the layout of the code, and what clang-tidy finds in it.
find_program(CLANG_FORMAT clang-format)
find_program(RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
file(GLOB_RECURSE formatted CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/*.h ${CMAKE_SOURCE_DIR}/src/*.cpp
  ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/tests/*.cpp
  ${CMAKE_SOURCE_DIR}/e2e/*.h ${CMAKE_SOURCE_DIR}/e2e/*.cpp
  ${CMAKE_SOURCE_DIR}/bench/*.h ${CMAKE_SOURCE_DIR}/bench/*.cpp
  ${CMAKE_SOURCE_DIR}/fuzz/*.h ${CMAKE_SOURCE_DIR}/fuzz/*.cpp
  ${CMAKE_SOURCE_DIR}/help/*.h ${CMAKE_SOURCE_DIR}/help/*.cpp
  ${CMAKE_SOURCE_DIR}/languages/*.cpp
  ${CMAKE_SOURCE_DIR}/orec/*.h ${CMAKE_SOURCE_DIR}/orec/*.cpp
  ${CMAKE_SOURCE_DIR}/resources/*.h ${CMAKE_SOURCE_DIR}/resources/*.cpp)
if(CLANG_FORMAT)
  add_custom_target(check-format
    COMMAND ${CLANG_FORMAT} --dry-run --Werror ${formatted} VERBATIM)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${formatted} VERBATIM)
endif()
if(RUN_CLANG_TIDY)
  # It takes the files by regular expressions.
  string(REGEX REPLACE "([][+.*()^$?|\\\\{}])" "\\\\\\1" tidied "${CMAKE_SOURCE_DIR}")
  # clang does not know all warnings that g++ is told about.
  set(tidy_options -quiet -extra-arg=-Wno-unknown-warning-option)
  if(WIN32)
    # The host's build has the rest.
    string(APPEND tidied "/(src/machine|orec)/win32/")
    # clang's search for the headers of MinGW-w64 does not find those of this g++.
    list(APPEND tidy_options -extra-arg=--target=x86_64-w64-mingw32 -checks=-performance-no-int-to-ptr)
    foreach(folder ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
      if(NOT folder MATCHES "/(include|include-fixed)$" OR folder MATCHES "mingw32/include$")
        list(APPEND tidy_options -extra-arg=-isystem${folder})
      endif()
    endforeach()
  else()
    string(APPEND tidied "/(src|resources/sounds|orec)/")
  endif()
  add_custom_target(check-tidy
    COMMAND ${RUN_CLANG_TIDY} ${tidy_options} -p ${CMAKE_BINARY_DIR} ${tidied} VERBATIM)
endif()
add_custom_target(check)
foreach(part check-format check-tidy)
  if(TARGET ${part})
    add_dependencies(check ${part})
  endif()
endforeach()
