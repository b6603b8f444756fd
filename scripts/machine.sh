# A Windows machine to run the pack on: Wine with a display, sound and a web of its own. All that is
# started here ends with leave_machine. Sourced, not run; the current folder is the project's.

. server/configuration.sh

machine_processes=()
machine_folder=

# enter_machine FOLDER: everything of the machine is kept in that folder, the Wine prefix between
# runs too. Fails if another run is using it: its windows would end with this one.
enter_machine() {
  mkdir -p "$1"
  # Open for as long as this shell and what it started.
  exec {machine_lock}>"$1/lock"
  if ! flock --nonblock "$machine_lock"; then
    echo "Another run is using $1; wait until it has ended" >&2
    return 1
  fi
  machine_folder=$(cd "$1" && pwd)
  # Sockets have short names only; and nobody else's business is in there.
  machine_runtime=$(mktemp -d)
  export WINEPREFIX=$machine_folder/prefix WINEARCH=win64 WINEDEBUG=-all
  export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  # File names and messages as the tests expect them, whatever the user's language is.
  export LC_ALL=C.UTF-8
}

leave_machine() {
  local process
  if [ -n "$machine_folder" ] && [ -d "$WINEPREFIX" ]; then
    wineserver -k 2>/dev/null && wineserver -w || true
  fi
  for process in "${machine_processes[@]}"; do
    kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || true
  done
  machine_processes=()
  [ -z "${machine_runtime:-}" ] || rm -rf "$machine_runtime"
}

# start NAME COMMAND...: in the background, its output in a log of that name.
start() {
  local name=$1
  shift
  "$@" >"$machine_folder/$name.log" 2>&1 </dev/null &
  machine_processes+=($!)
}

# wait_until WHAT COMMAND...: until it succeeds; gives up after half a minute, or once the process
# that was started last has ended.
wait_until() {
  local what=$1 deadline=$((SECONDS + 30)) process=${machine_processes[-1]}
  shift
  until "$@" >/dev/null 2>&1; do
    if [ "$SECONDS" -ge "$deadline" ] || ! kill -0 "$process" 2>/dev/null; then
      echo "Waited in vain for $what; see the logs in $machine_folder" >&2
      return 1
    fi
    sleep 0.1
  done
}

# True if there is a screen to show windows on.
has_display() {
  case ${DISPLAY:-} in
    "") return 1 ;;
    :*)
      local number=${DISPLAY#:}
      [ -S "/tmp/.X11-unix/X${number%%.*}" ]
      ;;
  esac
}

# True if there is something to play sounds on.
has_sound() {
  pactl info >/dev/null 2>&1 || compgen -G '/dev/snd/pcm*' >/dev/null
}

start_display() {
  local number=$machine_runtime/display
  start display sh -c 'exec Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$1"' sh "$number"
  wait_until "the virtual display" test -s "$number" || return 1
  DISPLAY=:$(cat "$number")
  export DISPLAY
}

# One second of what the microphone hears: a sine of 440 Hz left and of 660 Hz right, half as loud as
# can be. Samples of 16 bits, 44100 a second.
microphone_tone() {
  perl -e 'for my $i (0 .. 44099) {
    print pack("s<2", map { 16383 * sin(8 * atan2(1, 1) * $_ * $i / 44100) } 440, 660);
  }'
}

# Speakers and a microphone without hardware: what is played can be recorded from speakers.monitor,
# and what is played into microphone_feed is heard by the microphone. That is a tone, without an end.
start_sound() {
  export XDG_RUNTIME_DIR=$machine_runtime PULSE_RUNTIME_PATH=$machine_runtime/pulse
  export PULSE_SERVER=unix:$machine_runtime/pulse.socket PULSE_STATE_PATH=$machine_runtime/pulse-state
  cat >"$machine_folder/pulse.pa" <<END
load-module module-native-protocol-unix socket=$machine_runtime/pulse.socket auth-anonymous=1
load-module module-null-sink sink_name=speakers
load-module module-null-sink sink_name=microphone_feed
load-module module-remap-source master=microphone_feed.monitor source_name=microphone
set-default-sink speakers
set-default-source microphone
END
  start sound env -u PULSE_SERVER pulseaudio -n -F "$machine_folder/pulse.pa" --system=false \
    --daemonize=no --use-pid-file=no --exit-idle-time=-1 --disallow-exit
  wait_until "the sound server" pactl info || return 1
  # Whole periods, so that its end meets its beginning.
  microphone_tone >"$machine_folder/tone.raw"
  start tone sh -c 'while cat "$1"; do :; done | exec pacat --playback --device=microphone_feed \
    --raw --format=s16le --rate=44100 --channels=2 --latency-msec=20' sh \
    "$machine_folder/tone.raw"
}

# Records all that is played, from now on, at the end of FOLDER/speakers.raw: samples of 16 bits,
# mono, 44100 a second. Five megabytes a minute.
record_speakers() {
  rm -f "$machine_folder/speakers.raw"
  start recorder sh -c 'exec parec --device=speakers.monitor --raw --format=s16le --rate=44100 \
    --channels=1 --latency-msec=20 >"$1"' sh "$machine_folder/speakers.raw"
  wait_until "the recorder" test -s "$machine_folder/speakers.raw"
}

# start_web [INSTALLER]: publishes the demo's add-ons anew and serves them on a port of its own, whose
# number is then in web_port. What is put into FOLDER/web/HOST, under the path of its address, is
# served in place of it. The program that publishes must have been built.
#   INSTALLER  what is offered as the pack's next release.
start_web() {
  local port root=$machine_folder/nginx
  mkdir -p "$machine_folder/web" "$root"
  python3 server/make-offer.py "$root" "$@" || return 1
  out/tools/sk2publish "$root/offer" "$root/site" || return 1
  write_server_configuration "$root"
  write_overlay "$machine_folder/web" >"$root/before.conf"
  for port in $(shuf -i 20000-30000 -n 20); do
    is_port_free "$port" || continue
    site_configuration "127.0.0.1:$port" "$root/site/current" '' '' \
      "include \"$root/before.conf\";" >"$root/site.conf"
    rm -f "$root/nginx.pid"
    start web nginx -p "$root" -c "$root/nginx.conf" -g 'daemon off;'
    # Written once the port is its own: another machine's server may have come first.
    if wait_until "the web server" test -s "$root/nginx.pid"; then
      web_port=$port
      return 0
    fi
  done
  return 1
}

# write_overlay FOLDER: the directives by which a file in FOLDER/HOST comes before what the host has.
write_overlay() {
  cat <<END
recursive_error_pages on;
error_page 418 = @overlay;
location @overlay {
  root "$1/\$host";
}
if (-f "$1/\$host\${uri}index.html") {
  rewrite ^ \${uri}index.html;
}
if (-f "$1/\$host\$uri") {
  return 418;
}
END
}

# start_windows: makes the Wine prefix if there is none yet.
start_windows() {
  if [ ! -e "$machine_folder/prefix-is-made" ]; then
    echo "Making a Wine prefix"
    rm -rf "$WINEPREFIX"
    wine wineboot --init >"$machine_folder/wineboot.log" 2>&1 </dev/null || return 1
    wineserver -w
    # Debian's Wine does not find the fonts of Windows' own controls by itself.
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/" || return 1
    touch "$machine_folder/prefix-is-made"
  fi
}

# copy_windows FOLDER: gives the machine of that folder a copy of this one's Wine prefix if it has none
# yet, which is faster than making one. Nothing may run on either.
copy_windows() {
  if [ ! -e "$1/prefix-is-made" ]; then
    rm -rf "$1/prefix"
    mkdir -p "$1"
    cp -a "$WINEPREFIX" "$1/prefix" || return 1
    touch "$1/prefix-is-made"
  fi
}

# write_registry TEXT: writes what a .reg file of that text holds; "\n" ends its lines.
write_registry() {
  printf 'REGEDIT4\n\n%s\n' "$1" | sed 's/$/\r/' >"$machine_folder/settings.reg"
  wine regedit /S "$machine_folder/settings.reg" >/dev/null 2>&1 </dev/null
}

# Windows get a desktop of their own, for which no window manager is needed. It is as dense as an
# ordinary screen, whatever a run that was interrupted has left there.
use_virtual_desktop() {
  write_registry '[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="Default"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"Default"="1280x1024"

[HKEY_CURRENT_USER\Control Panel\Desktop]
"LogPixels"=dword:00000060' || return 1
  # The running desktop is the old one.
  wineserver -k && wineserver -w || true
}

# Each window is a window of the user's own desktop.
use_no_desktop() {
  write_registry '[-HKEY_CURRENT_USER\Software\Wine\Explorer]' || return 1
  wineserver -k && wineserver -w || true
}

# Every address that the pack opens is asked of the server of start_web, whatever its host.
use_own_web() {
  write_registry '[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Internet Settings]
"ProxyEnable"=dword:00000001
"ProxyServer"="127.0.0.1:'"$web_port"'"'
}
