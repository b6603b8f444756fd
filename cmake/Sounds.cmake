# The sounds of the game's vehicles, made while the pack is built: ${SK2_SOUNDS}/*.wav, and sounds.rc,
# which makes them resources. What makes them runs on the machine that builds, so in a cross-build it
# is not built as the rest is.
set(SK2_SOUNDS ${CMAKE_BINARY_DIR}/generated/sounds)
file(GLOB sound_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/sounds/*.cpp)
file(GLOB sound_headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/sounds/*.h)
# A product and a sum that are rounded once instead of twice would change the samples.
set(sound_options -O2 -ffp-contract=off)

if(CMAKE_CROSSCOMPILING)
  find_program(SK2_NATIVE_CXX NAMES c++ g++ clang++ REQUIRED
    DOC "A compiler for the machine that builds")
  set(make_sounds ${CMAKE_BINARY_DIR}/generated/make-sounds)
  add_custom_command(OUTPUT ${make_sounds}
    COMMAND ${SK2_NATIVE_CXX} -std=c++20 ${sound_options} -I${CMAKE_SOURCE_DIR}/src ${sound_sources}
      -o ${make_sounds}
    DEPENDS ${sound_sources} ${sound_headers} ${CMAKE_SOURCE_DIR}/src/vehicles/InternalSounds.h
      ${CMAKE_SOURCE_DIR}/src/vehicles/VehicleVariables.h
    COMMENT "Building what makes the sounds" VERBATIM)
else()
  set(make_sounds make-sounds)
  add_executable(make-sounds EXCLUDE_FROM_ALL ${sound_sources})
  target_include_directories(make-sounds PRIVATE ${CMAKE_SOURCE_DIR}/src)
  target_compile_options(make-sounds PRIVATE ${sound_options})
endif()

add_custom_command(OUTPUT ${SK2_SOUNDS}/sounds.rc
  COMMAND ${CMAKE_COMMAND} -E make_directory ${SK2_SOUNDS}
  COMMAND ${make_sounds} ${SK2_SOUNDS}
  DEPENDS ${make_sounds} COMMENT "Making the sounds of the vehicles" VERBATIM)
add_custom_target(sounds DEPENDS ${SK2_SOUNDS}/sounds.rc)
