# Installing Debian packages that are missing. Sourced, not run.

# The packages that building and running the pack takes, those of its makers, and those that its
# tests take besides.
pack_packages=(cmake ninja-build g++ zlib1g-dev libssl-dev openssl g++-mingw-w64-x86-64-posix libz-mingw-w64-dev googletest
  fp-utils wine wine64 fonts-wine fonts-dejavu-core xvfb pulseaudio-utils nginx-light nsis python3)
# Publishing, and serving what was published.
server_packages=(cmake ninja-build g++ zlib1g-dev libssl-dev nginx-light)
test_packages=(libgtest-dev libgmock-dev clang libclang-rt-dev clang-format clang-tidy
  zip unzip p7zip-full libarchive-tools)
# Speakers without hardware. Where there are real ones another sound server may be at work, which
# this one would push out.
sound_packages=(pulseaudio)

is_installed() {
  [ "$(dpkg-query -W -f='${Status}' "$1" 2>/dev/null)" = "install ok installed" ]
}

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# apt ARGUMENT...: apt-get, asking nothing.
apt() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 \
    -o Dpkg::Use-Pty=0 "$@"
}

# Installs packages without starting their services, now or when the machine starts. What the user
# has stays: no package is removed, and a web server that was there before keeps its settings. In a
# shell of its own, which gives the machine its own policy back however it ends.
install_quietly() (
  had_web_server=false
  ! is_installed nginx || had_web_server=true
  policy=/usr/sbin/policy-rc.d
  apt update || return 1
  if [ ! -e "$policy" ]; then
    trap 'as_root rm -f "$policy"' EXIT
    printf '#!/bin/sh\nexit 101\n' | as_root tee "$policy"
    as_root chmod +x "$policy"
  fi
  apt install --yes --no-remove --no-install-recommends "$@" || return 1
  if [ -d /run/systemd/system ] && [ "$had_web_server" = false ] && is_installed nginx; then
    as_root systemctl --quiet disable nginx
  fi
)

# install_packages NAME...: installs those that are not there; asks apt for nothing if all are.
install_packages() {
  local missing=() package log
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing ${missing[*]}"
  log=$(mktemp)
  if ! install_quietly "${missing[@]}" >"$log" 2>&1 </dev/null; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
