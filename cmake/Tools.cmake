# What the console programs are made of: the formats, which know no window, and natively a machine of
# the services that these need.
file(GLOB_RECURSE format_sources CONFIGURE_DEPENDS
  src/base/*.cpp src/platform/*.cpp src/archive/*.cpp src/text/*.cpp src/tools/*.cpp)
list(FILTER format_sources EXCLUDE REGEX "Main\\.cpp$")
foreach(source
    app/LanguageTemplate internet/ComponentPlaces internet/ComponentRecords records/RecordChecker tracks/TrackChecker
    update/Versions vehicles/VehicleChecker)
  list(APPEND format_sources ${CMAKE_SOURCE_DIR}/src/${source}.cpp)
endforeach()
add_library(formats OBJECT ${format_sources})
target_include_directories(formats PUBLIC src ${CMAKE_BINARY_DIR}/generated)
target_link_libraries(formats PUBLIC ZLIB::ZLIB)

# sk2_tool(NAME LIBRARY...): the console program NAME, made of what src/tools/NAMEMain.cpp calls.
function(sk2_tool name)
  add_executable(${name} src/tools/${name}Main.cpp)
  target_compile_definitions(${name} PRIVATE SK2_VERSION="${PROJECT_VERSION}")
  target_link_libraries(${name} PRIVATE ${ARGN})
  if(NOT SK2_TOOLS)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tools)
  endif()
  target_link_options(${name} PRIVATE -s)
endfunction()

if(NOT WIN32)
  # All of the machine goes into each program, so that the formats find there what they need.
  sk2_sources(posix_sources src/machine/posix)
  add_library(posix OBJECT EXCLUDE_FROM_ALL ${posix_sources})
  target_include_directories(posix PUBLIC src)
  add_library(portable STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:formats>)
  target_include_directories(portable PUBLIC src ${CMAKE_BINARY_DIR}/generated)
  target_link_libraries(portable PUBLIC ZLIB::ZLIB)
  if(SK2_TOOLS)
    sk2_tool(sk2check posix portable)
    sk2_tool(sk2publish posix portable)
  endif()
endif()
