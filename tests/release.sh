#!/bin/bash
# Sourced by test: the packages of packaging/release, taken as a user takes them.
# shellcheck shell=bash disable=SC2154

readonly dist=$root/dist
readonly unpacked="$root/build/release/Été à la campagne"

# Another checkout of the same sources, changes of this one included: other paths, same bytes.
make_twin() {
  local twin=$root/build/release/twin
  rm -rf "$twin"
  git clone -q --shared "$root" "$twin" &&
    (cd "$root" && git ls-files -z -co --exclude-standard | xargs -0 cp --parents -t "$twin") &&
    "$twin/packaging/release" --dirty
}

same_bytes_twice() {
  make_twin && diff -r "$dist" "$root/build/release/twin/dist"
}

unpack_zip() {
  rm -rf "$unpacked"
  mkdir -p "$unpacked"
  unzip -q "$dist"/trovex-*-windows.zip -d "$unpacked" &&
    (cd "$unpacked" && sha256sum --quiet -c SHA256SUMS) &&
    [ "$(cd "$unpacked" && echo *)" = 'LISEZMOI.TXT SHA256SUMS TROVEX.HLP Trovex.exe trovex-cli.exe' ]
}

# Windows-1252, each line with CR LF.
reads_on_windows() {
  iconv -f CP1252 -t UTF-8 "$unpacked/LISEZMOI.TXT" | tr -d '\r' | cmp - "$root/packaging/LISEZMOI.txt" &&
    [ "$(grep -c $'\r$' "$unpacked/LISEZMOI.TXT")" = "$(wc -l <"$root/packaging/LISEZMOI.txt")" ]
}

unpacked_catalogues() {
  "$root/build/native/trovex-cli" --json "$root/build/sample-disc" >"$root/build/native.json" &&
    on_windows win10 "$unpacked/trovex-cli.exe" --json 'D:\' >"$root/build/release/unpacked.json" &&
    cmp "$root/build/native.json" "$root/build/release/unpacked.json"
}

unpacked_opens_its_window() {
  on_windows win10 "$root/build/$windows_preset/trovex-windowpicture.exe" "$unpacked/Trovex.exe" \
    "$root/build/release/window.png" && test -s "$root/build/release/window.png"
}

# A command with what was installed: a clean Debian under a layer that is thrown away.
in_clean_root() { # COMMAND [ARGUMENT...]
  unshare "${unshare_as[@]}" bash -c 'set -e
    layer=$1 lower=$2; shift 2
    mount -t tmpfs none "$layer"
    mkdir "$layer"/{upper,work,all}
    mount -t overlay none -o "lowerdir=$lower,upperdir=$layer/upper,workdir=$layer/work" "$layer/all"
    mount --bind /proc "$layer/all/proc"
    mount --rbind "$PACKAGES" "$layer/all/mnt"
    mkdir -p "$layer/all/media/disc"
    mount --bind "$DISC" "$layer/all/media/disc"
    exec chroot "$layer/all" "$@"' bash "$root/build/release/layer" "$clean_root" "$@"
}

installs() {
  mkdir -p "$root/build/release/layer"
  "$root/build/native/trovex-cli" --json "$root/build/sample-disc" >"$root/build/native.json"
  PACKAGES=$dist DISC=$root/build/sample-disc in_clean_root sh -c '
    dpkg -i /mnt/trovex-cli_*.deb >/dev/null && trovex-cli --json /media/disc
    status=$?
    dpkg -r trovex-cli >/dev/null && test ! -e /usr/bin/trovex-cli && exit $status' \
    >"$root/build/release/installed.json" &&
    cmp "$root/build/native.json" "$root/build/release/installed.json"
}

installed_settings() {
  PACKAGES=$dist DISC=$root/build/sample-disc in_clean_root sh -c '
    dpkg -i /mnt/trovex-cli_*.deb >/dev/null
    mkdir -p /tmp/settings/trovex && printf "[html]\r\nhtml_titre=Au grenier\r\n" >/tmp/settings/trovex/Trovex.ini
    XDG_CONFIG_HOME=/tmp/settings trovex-cli --quiet --html /tmp/site.htm /media/disc &&
      grep -q "Au grenier" /tmp/site_tableaux.htm && test ! -e /usr/bin/Trovex.ini'
}

unpack_deb() {
  rm -rf "$root/build/release/deb"
  dpkg-deb -x "$dist"/trovex-cli_*.deb "$root/build/release/deb"
}

# In Debian's own words: no fault that it calls an error.
lintian_finds_no_error() {
  lintian --allow-root --fail-on error --no-cfg --display-level '>=error' "$dist"/trovex-cli_*.deb
}

readonly manual=$root/build/release/deb/usr/share/man

man_finds_no_fault() { # PAGE
  local faults
  faults=$(MANROFFSEQ='' MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" 2>&1 >/dev/null) || return
  [ -z "$faults" ] || { printf '%s\n' "$faults" && return 1; }
}

options_of_help() {
  "$root/build/release/deb/usr/bin/trovex-cli" --help | sed -n 's/^  \(-[^ ]*\).*/\1/p' | tr , '\n' | sort -u
}

options_of_page() { # PAGE
  MANWIDTH=80 LC_ALL=C.UTF-8 man -E UTF-8 -l "$1" | col -bx | grep -E '^ {7}-' |
    grep -oE -- '(^| )--?[a-z][a-z-]*' | tr -d ' ' | sort -u
}

page_names_the_options() { # PAGE
  diff <(options_of_help) <(options_of_page "$1")
}

completes_in_bash() {
  bash --norc -c 'source /usr/share/bash-completion/bash_completion; source "$1"
    COMP_LINE="trovex-cli -" COMP_POINT=12 COMP_WORDS=(trovex-cli -) COMP_CWORD=1
    _trovex_cli; printf "%s\n" "${COMPREPLY[@]}"' bash \
    "$root/build/release/deb/usr/share/bash-completion/completions/trovex-cli"
}

# What it hands to the shell's own function for options.
completes_in_zsh() {
  local file=$root/build/release/deb/usr/share/zsh/vendor-completions/_trovex-cli
  zsh -f -n "$file" &&
    zsh -f -c '_arguments() { print -rl -- ${${(M)@:#-*}%%\[*} }; source $1' zsh "$file" | grep -v '^-S$'
}

completes_in_fish() {
  HOME=$root/build/release fish --no-config -c 'source $argv[1]; complete -C "trovex-cli --"; complete -C "trovex-cli -"' \
    "$root/build/release/deb/usr/share/fish/vendor_completions.d/trovex-cli.fish" | cut -f 1
}

offers_every_option() { # COMMAND
  diff <(options_of_help) <("$1" | grep '^-' | sort -u)
}

suite_release() {
  mkdir -p "$root/build/release"
  check 'packaging/release makes the packages' "$root/packaging/release" --dirty
  check 'the same bytes in another checkout' same_bytes_twice
  check 'the sample disc is made' sample_disc
  check 'the zip holds what it says' unpack_zip
  check 'LISEZMOI.TXT is a text of Windows' reads_on_windows
  if [ "$windows_preset" = windows-i686 ]; then
    collect # Wine serves one at a time
    check 'from a directory with blanks and accents: trovex-cli.exe' unpacked_catalogues
    check 'a program that takes pictures of windows' build "$windows_preset" trovex-windowpicture
    check 'from a directory with blanks and accents: Trovex.exe' unpacked_opens_its_window
  fi
  check 'a clean Debian' "$root/packaging/debian-root" "$clean_root" "$(dpkg --print-architecture)" libstdc++6
  check 'the package installs, runs and goes again' installs
  check 'the package has its settings in the user'"'"'s directory' installed_settings
  check 'the package unpacks' unpack_deb
  check 'lintian finds no error' lintian_finds_no_error
  local page shell
  for page in man1 fr/man1; do
    check "$page: man finds no fault" man_finds_no_fault "$manual/$page/trovex-cli.1.gz"
    check "$page names every option and no other" page_names_the_options "$manual/$page/trovex-cli.1.gz"
  done
  for shell in bash zsh fish; do
    check "$shell completes every option" offers_every_option "completes_in_$shell"
  done
}
