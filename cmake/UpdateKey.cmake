# sk2_update_key(VARIABLE PATH): the text of the maker's public key in a PEM file, on one line; "none"
# if the path is empty. A file that the pack would not take for a key ends the configuration.
function(sk2_update_key variable path)
  set(text none)
  if(path)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    file(READ ${path} text)
    string(REGEX REPLACE "[\r\n]" "" text "${text}")
    # What stands before the point of every key of the curve P-256, then 64 bytes.
    if(NOT text MATCHES "^-----BEGIN PUBLIC KEY-----MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAE[A-Za-z0-9+/]+==-----END PUBLIC KEY-----$")
      message(FATAL_ERROR "${path} is no public key of the curve P-256, as these two commands make one:\n"
        "  openssl ecparam -name prime256v1 -genkey -noout -out maker.pem\n"
        "  openssl ec -in maker.pem -pubout -out maker-public.pem")
    endif()
    string(LENGTH "${text}" length)
    if(NOT length EQUAL 174)
      message(FATAL_ERROR "${path} is a public key of the wrong length.")
    endif()
  endif()
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

sk2_update_key(SK2_UPDATE_KEY_TEXT "${SK2_UPDATE_KEY}")
