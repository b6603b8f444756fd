# What of a program folder is installed, for the installer's script:
#   cmake -DFOLDER=FOLDER -DOUTPUT=FILE -P Files.cmake
#
# Writes a macro that is expanded for each file, with its folder, name and source; the pack itself
# comes last, so that it is the new one only when all that it needs is there. One for each folder, the
# deeper first, and one for each language, but English, that the texts are there in. What a pack that
# was tried in the folder has left there is no part of it. The file is written anew only if something
# in the folder has changed.
cmake_policy(VERSION 3.22)
set(own_files "\\.(cfg|tmp|log)$|^[^/]*\\.lng$|^iplist\\.dat$|^orv|^sk2up\\.|^uninstall\\.exe$")
file(GLOB_RECURSE names RELATIVE ${FOLDER} ${FOLDER}/*)
list(FILTER names EXCLUDE REGEX "${own_files}")
list(REMOVE_ITEM names sk2pack.exe)
list(SORT names)
list(APPEND names sk2pack.exe)

set(files "")
set(folders "")
set(languages "")
set(size 0)
foreach(name IN LISTS names)
  get_filename_component(folder "${name}" DIRECTORY)
  get_filename_component(file "${name}" NAME)
  string(REPLACE "/" "\\" place "${folder}")
  if(place)
    string(PREPEND place "\\")
    list(APPEND folders "${place}")
  endif()
  file(SHA256 "${FOLDER}/${name}" sum)
  string(APPEND files "  ; ${sum}\n  !insertmacro \${DO} \"${place}\" \"${file}\" \"${FOLDER}/${name}\"\n")
  if(folder STREQUAL "languages" AND file MATCHES "^(.*)\\.lng$" AND NOT file STREQUAL "template.lng")
    string(APPEND languages "  !insertmacro \${DO} \"${CMAKE_MATCH_1}\"\n")
  endif()
  file(SIZE "${FOLDER}/${name}" bytes)
  math(EXPR size "${size} + (${bytes} + 1023) / 1024")
endforeach()
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)

set(text "; Made by Files.cmake.\n!define SIZE_KB ${size}\n!macro EachFile DO\n${files}!macroend\n!macro EachFolder DO\n")
foreach(folder IN LISTS folders)
  string(APPEND text "  !insertmacro \${DO} \"${folder}\"\n")
endforeach()
string(APPEND text "!macroend\n!macro EachLanguage DO\n${languages}!macroend\n")
if(languages)
  string(APPEND text "!define HAS_LANGUAGES\n")
endif()
set(before "")
if(EXISTS ${OUTPUT})
  file(READ ${OUTPUT} before)
endif()
if(NOT before STREQUAL text)
  file(WRITE ${OUTPUT} "${text}")
endif()
