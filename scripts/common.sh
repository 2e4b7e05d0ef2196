# What the commands in this folder share: saying what is done, installing packages, building.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

# What any build of the program and its tools needs on Debian 12; fonts for the window.
build_packages=(cmake ninja-build g++ googletest qt6-base-dev libgl-dev fonts-dejavu-core)

# What the tests need besides.
test_packages=(btrfs-progs e2fsprogs locales mount strace xfsprogs)

say() {
  printf '\n== %s\n' "$*"
}

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 2
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "packages have to be installed, which needs root or sudo"
  fi
}

# Installs those of the named Debian packages that are missing.
install_packages() {
  local package missing=()
  if ! command -v apt-get >/dev/null; then
    say "There is no apt here. README.md says under \"Elsewhere\" what has to be installed; going on with what is there."
    return
  fi
  for package in "$@"; do
    dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  if [ ${#missing[@]} -eq 0 ]; then
    say "Packages: all there"
    return
  fi
  say "Installing packages: ${missing[*]}"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq update </dev/null ||
    echo "The package lists could not all be brought up to date; going on with what is there."
  local log="$root/build/packages.log"
  mkdir -p "$root/build"
  if ! as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install --yes --no-install-recommends \
    -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "${missing[@]}" </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    fail "the packages could not be installed"
  fi
}

# The packages of Debian that decide what a Windows build is made of, each with its version.
windows_tools() {
  dpkg-query --show --showformat='${binary:Package} ${Version}\n' g++-mingw-w64-x86-64-posix \
    gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev binutils-mingw-w64-x86-64
}

# Wine keeps what it takes for its Windows disk under build/, apart from any the user has.
prepare_wine() {
  export WINEPREFIX="$root/build/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
  [ ! -f "$WINEPREFIX/system.reg" ] || return 0
  say "Preparing Wine"
  mkdir -p "$WINEPREFIX"
  wineboot --init </dev/null
  wineserver --wait
}

# configure PRESET [CMAKE-ARGUMENT...]: prepares build/PRESET.
configure() {
  local preset=$1
  shift
  say "Configuring build/$preset"
  (cd "$root" && cmake --preset "$preset" "$@" -Wno-dev --log-level=WARNING)
}

# build PRESET [TARGET...]: builds the named targets, or everything.
build() {
  local preset=$1
  shift
  say "Building build/$preset${*:+: $*}"
  cmake --build "$root/build/$preset" --parallel "$jobs" ${*:+--target "$@"}
}

# test_in_wine PRESET: runs the test programs of build/PRESET side by side, in memory where there is such a disk; fails
# where one does, and prints what it said. Each program's output goes into a file: through a pipe the tests would wait
# for Wine's own servers to end.
test_in_wine() {
  prepare_wine
  [ ! -d /dev/shm ] || wine reg add 'HKCU\Environment' /v TMP /d 'Z:\dev\shm' /f </dev/null >/dev/null
  say "Running the tests of build/$1 in Wine"
  printf '%s\0' "$root/build/$1"/bin/*_test.exe | xargs --null --max-args=1 --max-procs="$jobs" sh -c \
    'timeout 1200 wine "$0" >"$0.log" 2>&1 </dev/null || { cat "$0.log"; exit 1; }'
}
