# shellcheck shell=bash disable=SC2034,SC2154
# Sourced by run and test, with `me` set to the script's name and `root` to the checkout: installs
# what is missing and builds.

# What one checkout has compiled serves every other one on the machine.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=true

say() {
  echo "$me: $*" >&2
}

die() {
  say "$1"
  exit "${2:-1}"
}

# What each job needs, as packages of Debian 12.
packages_native=(g++ cmake ninja-build ccache googletest nlohmann-json3-dev libcli11-dev)
packages_windows=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix g++-mingw-w64-i686-win32)
# Of what Wine only recommends: the libraries of its windows, and letters to write in them.
packages_windows_of_wine=(libxcursor1 libxi6 libxrandr2 libxrender1 libxfixes3 libxcomposite1
  libxinerama1 fonts-liberation)
packages_wine=(wine64 xvfb "${packages_windows_of_wine[@]}")
# Those in the i386 root of packaging/wine-root.
packages_wine32=(wine wine32 "${packages_windows_of_wine[@]}")
packages_checks=(python3 clang-format-14 poppler-utils genisoimage xorriso)
packages_fuzz=(clang libclang-rt-14-dev)
packages_pictures=(xdotool imagemagick)
packages_browser=(chromium)
packages_release=(zip unzip dpkg-dev lintian man-db bash-completion zsh fish debootstrap)

# What is made once for all checkouts of the user: the Debian with the 32-bit Wine, and the one in which
# packages are tried.
readonly cache=${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/trovex
readonly wine_root=$cache/wine-i386
readonly clean_root=$cache/debian-$(dpkg --print-architecture 2>/dev/null)

# How to have mount points of one's own: unshare "${unshare_as[@]}" COMMAND.
unshare_as=(--mount --propagation private)
[ "$(id -u)" = 0 ] || unshare_as+=(--map-root-user)

missing_packages() {
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      echo "$package"
  done
}

# Runs a command with its output in a file, which is shown only if the command fails.
quietly() { # LOG COMMAND [ARGUMENT...]
  local log=$1 status=0
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 </dev/null || status=$?
  [ "$status" = 0 ] || tail -n 60 "$log" >&2
  return "$status"
}

# Installs those of the packages that are missing.
need() { # PACKAGE...
  command -v dpkg-query >/dev/null || {
    say "this is no Debian system; expecting what these packages hold: $*"
    return 0
  }
  local missing as_root=()
  read -r -d '' -a missing <<<"$(missing_packages "$@")" || true
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || die "no sudo; as root: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  say "installing ${missing[*]}"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y
    -o DPkg::Lock::Timeout=300)
  quietly "$root/build/apt-update.log" "${apt[@]}" update || say 'apt-get update failed; trying on'
  quietly "$root/build/apt-install.log" "${apt[@]}" install --no-install-recommends \
    "${missing[@]}" || die 'the packages could not be installed'
}

# Builds targets of a preset (all of them if none is named), configuring it the first time.
build() { # PRESET [TARGET...]
  local preset=$1
  shift
  local targets=()
  [ $# = 0 ] || targets=(--target "$@")
  say "building $preset"
  if [ ! -e "$root/build/$preset/build.ninja" ]; then
    (cd "$root" && quietly "build/$preset.configure.log" cmake --preset "$preset") || return 1
  fi
  quietly "$root/build/$preset.build.log" cmake --build "$root/build/$preset" "${targets[@]}"
}
