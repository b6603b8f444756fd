# The configuration of the maker's web site for nginx, made of its templates. Sourced, not run; the
# current folder is the project's.

# site_configuration LISTEN SITE [HOST ADDRESS_HOST [BEFORE]]: prints what belongs into the block
# "http" of a configuration.
#   LISTEN        a port, or an address with one, such as 127.0.0.1:8080.
#   SITE          the folder that is served: what sk2publish calls "current".
#   HOST          what the pack calls the host of add-ons and updates.
#   ADDRESS_HOST  what it calls the host that tells its caller's address.
#   BEFORE        directives that come before the site itself.
site_configuration() {
  sed "s|@LISTEN@|$1|; s|@SITE@|$2|; s|@HOST@|${3:-www.orvane.example}|
    s|@ADDRESS_HOST@|${4:-address.orvane.example}|; s|@BEFORE@|${5:-}|; s|  *\$||; /^#!/d" \
    server/site.conf.in
}

# write_server_configuration FOLDER: writes FOLDER/nginx.conf, a server of the user's own, which
# includes FOLDER/site.conf. FOLDER is a whole path.
write_server_configuration() {
  local user=
  # As root the server would give up its rights, and with them those to the user's files.
  [ "$(id -u)" != 0 ] || user="user root;"
  sed "s|@USER@|$user|; s|@FOLDER@|$1|g" server/nginx.conf.in >"$1/nginx.conf"
}

is_port_free() {
  ! (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null
}
