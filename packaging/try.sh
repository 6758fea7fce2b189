#!/usr/bin/env bash
# Usage: try.sh [--roots FOLDER] [--made FOLDER] [--before PACKAGE]... [--cache FOLDER] [RELEASE]...
# Builds the packages and the archive on new Debian systems, and tests installation, use, upgrade and removal. It runs as
# root, and each system has a root file system of its own. At the end it prints the outcomes.
#   --roots   keeps the new root file systems and what was built there
#   --made    tests what is in this folder, such as what was built on the older release, and builds nothing
#   --before  an older package that is installed first and then upgraded; you can name several
#   --cache   a folder for ccache, which the builds then use
# Without a release: bookworm trixie
set -euo pipefail
# shellcheck source=tools/common.sh
. "$(dirname -- "$0")/../tools/common.sh"
read_options roots:,made:,before:,cache: "$@"
[ "$(id -u)" = 0 ] || fail "this needs root, for root file systems of its own"
[ "${TRY_ALONE:-}" ] || TRY_ALONE=1 exec unshare --mount --propagation private "$0" "$@"

roots='' given='' cache='' before=() table=() release='' tried='' now='' root='' home='' screen='' status=0
set -- "${arguments[@]}"
while [ "$1" != -- ]; do
  case $1 in
    --roots) roots=$(realpath --canonicalize-missing -- "$2") ;;
    --made) given=$(realpath -- "$2") ;;
    --before) before+=("$(realpath -- "$2")") ;;
    --cache) cache=$(realpath --canonicalize-missing -- "$2") ;;
  esac
  shift 2
done
releases=("${@:2}")
[ ${#releases[@]} -gt 0 ] || releases=(bookworm trixie)
cd "$source_folder"
tools/require debootstrap autopkgtest apt-utils desktop-file-utils xvfb xdotool
work=$(mktemp -d)
unset TMPDIR  # the systems of the trials do not have that folder
chmod 755 "$work"  # folders below it become the root of an ordinary user
: "${roots:=$work/roots}"
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

end_step() { [ -z "$now" ] || table+=("$(printf '%-9s %-75s %s' "$tried" "$now" "$1")"); now=''; }
step() {
  end_step passed
  now=$1 tried=$release
  printf '\n== %s: %s\n' "$release" "$now"
}
report() {
  if [ "$1" -eq 0 ]; then end_step passed; else end_step FAILED; fi
  printf '\n'
  printf '%s\n' "${table[@]}"
}
drop() {
  [ -z "$screen" ] || kill "$screen" 2> /dev/null || true
  screen=''
  [ -n "$root" ] || return 0
  for mounted in dev proc cache tmp/.X11-unix; do umount --recursive --lazy "$root/$mounted" 2> /dev/null || true; done
  # The list has blanks and some other characters in octal, without the zero in front that %b expects.
  printf -v mounted %b "$(sed 's/\\/\\0/g' /proc/self/mounts)"
  [[ $mounted != *" $root/"* ]] || return 1
  rm -rf "$root"
  root=''
}
trap 'status=$?; report $status; drop && rm -rf "$work"' EXIT
trap 'exit 130' HUP INT TERM  # a step that was broken off has not passed

inside() { chroot "$root" "$@"; }
as_user() { inside su - installer -c "$1"; }
install_in() { inside apt-get install -q -y --no-install-recommends "$@" > /dev/null; }

# A root file system of the release with nothing but Debian's required packages and an ordinary user.
fresh() {
  drop
  if [ ! -e "$roots/$release/bare" ]; then
    mkdir -p "$roots"
    rm -rf "${roots:?}/$release"
    debootstrap --variant=minbase "$release" "$roots/$release" > /dev/null
    touch "$roots/$release/bare"
  fi
  root=$work/root
  cp -a "$roots/$release" "$root"
  mount -t proc proc "$root/proc"
  mount --rbind /dev "$root/dev"
  cp /etc/resolv.conf "$root/etc/resolv.conf"
  inside apt-get update -q > /dev/null
  inside useradd --create-home --shell /bin/bash installer
  home=$(inside getent passwd installer | cut -d: -f6)
}

build() {
  fresh
  local sources=$home/ovl-software compiler=()
  tar --extract --file "$(packaging/sources.sh -- "$work")" --directory "$root$home"
  mv "$root$home"/ovl-software-* "$root$sources"
  step "build.sh without git, as a user without rights: names the missing packages"
  inside chown -R installer: "$sources"
  as_user "! '$sources/packaging/build.sh'" 2>&1 | tee "$work/said"
  grep -q "as root:.* build-essential " "$work/said"
  step "build.sh without git: packages and archive, no complaint of the checks"
  if [ -n "$cache" ]; then
    mkdir -p "$root/cache" "$cache"
    mount --bind "$cache" "$root/cache"
    install_in ccache
    compiler=("PATH=/usr/lib/ccache:$PATH" CCACHE_DIR=/cache "CCACHE_BASEDIR=$sources" CCACHE_NOHASHDIR=1
      "CCACHE_SLOPPINESS=pch_defines,time_macros")
  fi
  inside env "${compiler[@]}" "$sources/packaging/build.sh"
  rm -rf "${made:?}"
  mkdir -p "$made"
  cp "$root$sources"/build/package/*.deb "$root$sources"/build/package/*.tar.gz "$made"
}

# The archive belongs to an ordinary user from the first to the last step; root only installs what it asks for.
try_archive() {
  fresh
  local archive=$home/ovl
  step "archive: unpacked; ./start names what the system lacks"
  cp "$made"/*-linux-*.tar.gz "$root/tmp/archive.tar.gz"
  as_user "mkdir '$archive' && tar -xf /tmp/archive.tar.gz -C '$archive' --strip-components=1"
  as_user "! '$archive/start' --check" 2>&1 | tee "$work/said"
  step "archive: what ./start names is installed, and enough"
  read -ra lacking < <(sed -n 's/.*apt install //p' "$work/said")
  install_in "${lacking[@]}"
  as_user "'$archive/start' --check"
  step "archive: ./start without a firmware says how to set it"
  as_user "! QT_QPA_PLATFORM=offscreen '$archive/start'" 2>&1 | tee "$work/said"
  grep -qF -- "--firmware V1400 R12" "$work/said"
  as_user "! '$archive/start' --firmware V1400 R99" 2>&1 | tee "$work/said"
  grep -qF "no firmware V1400 R99" "$work/said"
  as_user "'$archive/start' --firmware V1400 R12"
  step "archive: ./start and a transfer as an ordinary user"
  try_start "$archive"
  step "archive: moved to a folder with blanks and umlauts, ./start and a transfer"
  as_user "mkdir '$home/Ein schöner Ort' && mv '$archive' '$home/Ein schöner Ort/ovl'"
  try_start "$home/Ein schöner Ort/ovl"
  step "archive: from the menu, a window on a display"
  as_user "'$home/Ein schöner Ort/ovl/start' --menu"
  inside cat "$home/.local/share/applications/ovl-software.desktop" > "$work/ovl-software.desktop"
  desktop-file-validate "$work/ovl-software.desktop"
  try_window "$(sed -n 's/^Exec=\(.*\) %f$/\1/p' "$work/ovl-software.desktop")"
}

# The display is outside, so that the system of the trial has nothing of a display but what the program brought.
try_window() {
  mkdir -p "$root/tmp/.X11-unix" /tmp/.X11-unix
  mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
  rm -f "$work/display"
  Xvfb -displayfd 3 -nolisten tcp -noreset 3> "$work/display" 2> "$work/said" & screen=$!
  for _ in $(seq 50); do [ -s "$work/display" ] || sleep 0.2; done
  local display
  display=:$(cat "$work/display")
  as_user "DISPLAY=$display $1" & shown=$!
  DISPLAY=$display timeout 60 xdotool search --sync --onlyvisible --name " - OVL Software$"
  # The program ends with its display.
  kill "$screen"
  wait "$screen" "$shown" || true
  screen=''
  umount "$root/tmp/.X11-unix"
}

try_start() {
  cp packaging/debian/tests/transfer "$root/tmp/transfer"
  as_user "PATH=\"$1/bin:\$PATH\" XDG_CONFIG_DIRS=\"\$HOME/.local/share/OVL Software\" /tmp/transfer '$1/start'"
  # shellcheck disable=SC2016  # it is the user's shell that knows this home
  as_user 'readlink "$HOME/.local/share/OVL Software/V1400/R12"' | grep -qxF "$1/share/ovl-software/images/V1400/R12"
}

# Everything but the records and caches of the system.
files() {
  inside find / -xdev \( -path /proc -o -path /dev -o -path /tmp -o -path /var/cache -o -path /var/log \
    -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /run \) -prune -o -print | sort
}
# What the packages must never touch.
contents() {
  inside find /home /etc \( -path '/home/*' -o -path '/etc/xdg/ORB/*' \) -type f -exec sha256sum {} + | sort
}
is_kept() { contents | diff "$work/contents" - || fail "Files of the users or settings have changed."; }
# All but one lead to the package, which is gone.
no_dead_links() {
  local dead
  dead=$(inside find /home /root -xtype l)
  [ "$dead" = "$home/own link" ] || fail "Links that lead nowhere: $dead"
}

try_package() {
  fresh
  mkdir "$root/tmp/new" "$root/tmp/old"
  cp "$made"/*.deb "$root/tmp/new"
  cp packaging/debian/tests/transfer "$root/tmp"
  files > "$work/before"
  if [ -n "${before:-}" ]; then
    step "package of the version before: installed, started, a transfer"
    cp "${before[@]}" "$root/tmp/old"
    inside sh -c 'apt-get install -q -y --no-install-recommends fonts-dejavu-core /tmp/old/*.deb' > /dev/null
    inside ovl-setup V1400 R12
    as_user /tmp/transfer
    printf '; of the administrator\nSite=Filiale 7\n' >> "$root/etc/xdg/ORB/OVL Software.conf"
    as_user 'cp ".local/share/OVL Software/V1400/upload.bin" own.bin'
    as_user 'printf "[window]\ntheme=dark\n" > ".local/share/OVL Software/window.ini"'
    contents > "$work/contents"
    step "packages: upgraded; settings and files of the users are the same"
  else
    step "packages: installed"
  fi
  inside sh -c 'apt-get install -q -y --no-install-recommends fonts-dejavu-core /tmp/new/*.deb'
  [ -z "${before:-}" ] || is_kept
  inside dpkg --audit
  step "packages: ovl-setup refuses users and unknown firmware"
  as_user '! /usr/sbin/ovl-setup V1400 R12' 2>&1 | tee "$work/said"
  grep -qF "only root may write" "$work/said"
  if inside ovl-setup V1400 R99 2> "$work/said"; then fail "V1400 R99 is no firmware"; fi
  grep -qF "no firmware V1400 R99" "$work/said"
  step "packages: the guide, ovl and a transfer as an ordinary user"
  [ -n "${before:-}" ] || inside ovl-setup V1400 R12
  as_user 'QT_QPA_PLATFORM=offscreen ovl --guide guide.pdf && ls -l guide.pdf'
  as_user /tmp/transfer
  as_user 'test -L ".local/share/OVL Software/V1400/R12"'
  step "packages: a window on a display"
  try_window ovl

  step "packages: removed; files of the users are kept, no link leads nowhere"
  inside touch "/etc/xdg/ORB/OVL Software.conf.unsound" "/etc/xdg/ORB/OVL Software.conf.new"
  contents > "$work/contents"
  # shellcheck disable=SC2016  # it is the user's shell that knows this home
  as_user 'ln -s "$HOME/gone" "own link"'
  inside apt-get remove -q -y ovl-software
  is_kept
  no_dead_links
  step "packages: purged; nothing is left but the files of the users"
  # apt keeps what another package only recommends, as the C library does with libidn2.
  inside apt-get purge -q -y --autoremove -o APT::AutoRemove::RecommendsImportant=false \
    -o APT::AutoRemove::SuggestsImportant=false ovl-software ovl-software-images fonts-dejavu-core > /dev/null
  files > "$work/after"
  left=$(diff "$work/before" "$work/after" | grep '^>' | grep -vF "> $home/" || true)
  [ -z "$left" ] || fail "Left behind: $left"
  grep -v ' /etc/' "$work/contents" > "$work/own" && mv "$work/own" "$work/contents"
  is_kept
  no_dead_links
}

try_autopkgtest() {
  fresh
  step "autopkgtest: the packages' own test, in a system without them"
  mkdir -p "$work/test"
  cp -r packaging/debian "$work/test"
  autopkgtest "$made"/*.deb "$work/test/" --user installer -- chroot "$root"
}

for release in "${releases[@]}"; do
  made=${given:-$roots/$release.made}
  [ -n "$given" ] || build
  try_archive
  try_package
  try_autopkgtest
done
