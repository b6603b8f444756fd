#!/usr/bin/env bash
# Publishes a folder of add-ons and serves it on this machine, until Ctrl+C: for a maker to try what
# players will get. Nobody else can reach it, and it takes no rights of root.
#
#   server/serve.sh FOLDER [PORT]
#   server/serve.sh --host SITE HOST ADDRESS_HOST
#
# FOLDER is what sk2publish --help describes; PORT is 8080 unless it is given. The result is kept in
# out/serve/PORT. When FOLDER has changed, publish it again meanwhile, from another terminal:
#
#   out/tools/sk2publish FOLDER out/serve/PORT/site
#
# With --host it only prints the same configuration for the nginx of a real host; docs/web-host.md
# says what to do with it.
set -euo pipefail
called_from=$PWD
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/build.sh
. server/configuration.sh

usage() {
  sed -n '2,/^set/{/^set/d;s/^# \{0,1\}//;p}' server/serve.sh
}

case "${1:-}" in
  -h | --help)
    usage
    exit 0
    ;;
  --host)
    if [ $# != 4 ]; then
      usage >&2
      exit 2
    fi
    site_configuration 80 "$2/current" "$3" "$4"
    exit 0
    ;;
esac
if [ $# -lt 1 ] || [ $# -gt 2 ]; then
  usage >&2
  exit 2
fi
folder=$(cd "$called_from" && realpath -m -- "$1")
port=${2:-8080}
if ! [[ $port =~ ^[1-9][0-9]{0,4}$ ]] || [ "$port" -gt 65535 ]; then
  echo "\"$port\" is not the number of a port" >&2
  exit 2
fi

install_packages "${server_packages[@]}"
build tools sk2publish
here=$PWD/out/serve/$port
mkdir -p "$here"
out/tools/sk2publish "$folder" "$here/site"
if ! is_port_free "$port"; then
  echo "Something else is using port $port of this machine; give another one" >&2
  exit 2
fi
write_server_configuration "$here"
site_configuration "127.0.0.1:$port" "$here/site/current" >"$here/site.conf"
echo "The site is served at http://127.0.0.1:$port/ until this is interrupted (Ctrl+C)"
exec nginx -p "$here" -c "$here/nginx.conf" -g 'daemon off;'
