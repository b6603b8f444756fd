#!/usr/bin/env bash
# Lets 200 players at once fetch all that a site of a hundred archives serves, first while it stays as
# it is, then while another state is published again and again, and compares every byte.
#
#   server/load-test.sh [--brief]
#
# With --brief there are 20 players, and the figures mean nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/machine.sh

players=200 rounds=4
case "${1:-}" in
  "") ;;
  --brief) players=20 rounds=1 ;;
  *)
    echo "usage: server/load-test.sh [--brief]" >&2
    exit 2
    ;;
esac
if [ ! -x out/tools/sk2publish ]; then
  echo "Build sk2publish first: cmake --preset tools && cmake --build --preset tools" >&2
  exit 2
fi

folder=$PWD/out/load-test
machine_folder=$folder
rm -rf "$folder"
mkdir -p "$folder"
trap leave_load_test EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
leave_load_test() {
  touch "$folder/enough"
  local process
  for process in "${machine_processes[@]}"; do
    kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || true
  done
}

publish() {
  out/tools/sk2publish "$folder/$1" "$folder/$2" >>"$folder/published.log"
}
for state in one other; do
  python3 server/make-crowd.py "$folder/$state" "$state"
  publish "$state" "$state-site"
done
# What only one of the states has may be gone when it is asked for.
rm "$folder/other/langs/lang009.zip"
publish other other-site
publish one site

write_server_configuration "$folder"
for port in $(shuf -i 20000-30000 -n 20); do
  is_port_free "$port" && break
done
site_configuration "127.0.0.1:$port" "$folder/site/current" >"$folder/site.conf"
start web nginx -p "$folder" -c "$folder/nginx.conf" -g 'daemon off;'
wait_until "the web server" test -s "$folder/nginx.pid"

echo "While the site stays as it is:"
python3 server/players.py "$folder/one-site" "$port" "$players" "$rounds"
echo "While it is exchanged again and again:"
exchange_again_and_again() {
  local times=0
  until [ -e "$folder/enough" ]; do
    publish other site && publish one site || exit 1
    times=$((times + 2))
    echo "$times" >"$folder/exchanges"
  done
}
exchange_again_and_again &
exchanging=$!
python3 server/players.py "$folder/one-site" "$port" "$players" "$rounds" "$folder/other-site"
touch "$folder/enough"
wait "$exchanging"
echo "$(cat "$folder/exchanges") exchanges"
