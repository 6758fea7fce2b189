#!/usr/bin/env bash
# Tries the package in a Debian 12 of its own, as root: installs it, starts it and transfers a configuration as an
# ordinary user, removes it and fails if anything is left. try.sh [FOLDER] keeps the root file system in the folder.
set -euo pipefail
cd "$(dirname "$0")/.."
[ "${TRY_ALONE:-}" ] || TRY_ALONE=1 exec unshare --mount --propagation private "packaging/try.sh" "$@"
tools/require debootstrap
packages=(build/package/ovl-software_*.deb)

root=${1:-}
if [ -z "$root" ]; then
  root=$(mktemp -d)
  chmod 755 "$root"  # it becomes the root of an ordinary user
  trap 'umount --recursive --lazy "$root/dev" "$root/proc" 2>/dev/null || true; rm -rf --one-file-system "$root"' EXIT
fi
[ -e "$root/etc/debian_version" ] || debootstrap --variant=minbase bookworm "$root"
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
cp /etc/resolv.conf "$root/etc/resolv.conf"
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
inside() { chroot "$root" "$@"; }
as_user() { inside su - installer -c "$1"; }
files() {
  inside find / -xdev \( -path /proc -o -path /dev -o -path /tmp -o -path /var/cache -o -path /var/log \
    -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /run \) -prune -o -print | sort
}

inside apt-get update -q
inside id installer > /dev/null 2>&1 || inside useradd --create-home --shell /bin/bash installer
files > "$root/tmp/before"
cp "${packages[@]}" "$root/tmp"
inside sh -c 'apt-get install -q -y --no-install-recommends fonts-dejavu-core /tmp/ovl-software_*.deb'

echo "== As an ordinary user, before the firmware is set"
as_user '! ovl && ! /usr/sbin/ovl-setup V1400 R12'
echo "== ovl-setup"
if inside ovl-setup V1400 R99; then exit 1; fi
inside ovl-setup V1400 R12
inside cat "/etc/xdg/ORB/OVL Software.conf"
echo "== The guide and a transfer, as an ordinary user"
as_user 'QT_QPA_PLATFORM=offscreen ovl --guide guide.pdf 2> /dev/null && ls -l guide.pdf'
# The first start makes the folder of the program. It runs until it is stopped.
as_user 'QT_QPA_PLATFORM=offscreen timeout 5 ovl 2> /dev/null || test $? = 124'
as_user 'ls -l ".local/share/OVL Software/V1400"'
cat > "$root/tmp/transfer" <<'END'
set -e
ovl-unit --link ".local/share/OVL Software/ports/com1" --memory unit.bin > /dev/null & unit=$!
sleep 2
ovl-script 2> /dev/null <<STATEMENTS
store system
folder "$HOME/.local/share/OVL Software"
port real
start
click cmdConnect
click cmdSET
upload
set DATE_FORMAT_BAK 02
download
upload
expect field DATE_FORMAT_BAK 02
expect no box
STATEMENTS
kill $unit
wait $unit
echo "transferred, and the unit had nothing to complain of"
END
as_user 'bash /tmp/transfer'

echo "== Removed"
inside touch "/etc/xdg/ORB/OVL Software.conf.unsound" "/etc/xdg/ORB/OVL Software.conf.new"
inside apt-get remove -q -y ovl-software
left=$(inside find / -xdev \( -path /proc -o -path /dev -o -path /tmp -o -path /home -o -path /etc/xdg/ORB -o -path /var \) -prune \
  -o -iname '*ovl*' -print)
inside apt-get purge -q -y --autoremove ovl-software fonts-dejavu-core > /dev/null
files > "$root/tmp/after"
left+=$(diff "$root/tmp/before" "$root/tmp/after" | grep '^>' | grep -vF "> $(as_user 'echo ~')/" || true)
as_user 'find ~ -type f'
[ -z "$left" ] || { printf 'Left behind:\n%s\n' "$left" >&2; exit 1; }
echo "Nothing is left but the files of the user."
