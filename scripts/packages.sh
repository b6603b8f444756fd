# Installing Debian packages that are missing. Sourced, not run.

# The packages that building and running the pack takes, and those that its tests take besides.
pack_packages=(cmake ninja-build g++ g++-mingw-w64-x86-64-posix libz-mingw-w64-dev googletest
  wine wine64 fonts-wine fonts-dejavu-core xvfb pulseaudio pulseaudio-utils)
test_packages=(libgtest-dev libgmock-dev clang libclang-rt-dev clang-format clang-tidy
  nginx-light)

is_installed() {
  [ "$(dpkg-query -W -f='${Status}' "$1" 2>/dev/null)" = "install ok installed" ]
}

# install_packages NAME...: installs those that are not there; asks apt for nothing if all are.
install_packages() {
  local missing=() package log sudo=()
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  [ "$(id -u)" = 0 ] || sudo=(sudo)
  echo "Installing ${missing[*]}"
  log=$(mktemp)
  if ! {
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 update &&
      "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 \
        -o Dpkg::Use-Pty=0 install --yes --no-install-recommends "${missing[@]}"
  } >"$log" 2>&1 </dev/null; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
