#!/usr/bin/env bash
# Tries the package in a fresh Debian 12: installs it, uses it as its users do (packaging/try-deb-user.sh),
# removes it and looks for what it left behind. As root; needs debootstrap and the network. The fresh
# system is made once and kept.
#   packaging/try-deb.sh PACKAGE.deb [FOLDER]   FOLDER keeps the system; build/try-deb by default
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

[ $# -ge 1 ] && [ -f "$1" ] || die "Usage: packaging/try-deb.sh PACKAGE.deb [FOLDER]"
package=$(realpath "$1")
folder=$(realpath -m "${2:-build/try-deb}")
game=$PWD/build/release/sample-game
[ "$(id -u)" = 0 ] || die "This wants root."
command -v debootstrap >/dev/null || die "Please install debootstrap."
[ -e "$game/ravn.dat" ] || die "Please build the sample game: ./start.sh does."

# Processes and mounts of its own, so that all of them go with it.
if [ -z "${TRY_DEB_ALONE:-}" ]; then
    export TRY_DEB_ALONE=1
    exec unshare --mount --pid --fork --kill-child "$(realpath "$0")" "$package" "$folder"
fi

base=$folder/base
system=$folder/system
tools=(xvfb openbox xdotool x11-utils imagemagick xdg-utils libglib2.0-bin desktop-file-utils
    shared-mime-info hicolor-icon-theme man-db bash-completion fonts-dejavu-core procps)

inside() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive chroot "$@"
}
enter() {
    mount --bind /dev "$1/dev"
    mount -t proc proc "$1/proc"
    cp /etc/resolv.conf "$1/etc/resolv.conf"
}
leave() { umount "$1/dev" "$1/proc"; }

make_base() {
    [ -e "$base/.complete" ] && return 0
    say "Making a Debian 12 with what a desktop has of its own"
    [ -e "$base/usr/bin/apt-get" ] || debootstrap --variant=minbase bookworm "$base"
    enter "$base"
    inside "$base" apt-get update -q
    inside "$base" apt-get install -q -y --no-install-recommends "${tools[@]}"
    leave "$base"
    touch "$base/.complete"
}

# What is there of the programs, whoever put it there; the package's own records don't count.
traces() {
    inside "$system" find / -xdev \( -path /proc -o -path /dev -o -path /home -o -path /tmp \
        -o -path /var/lib/dpkg -o -path /var/log -o -path /var/cache -o -path /var/lib/apt \) -prune \
        -o \( -iname '*cmped*' -o -iname '*eldmark*' \) -print
    inside "$system" grep -rls eldmark /usr/share/mime /usr/share/applications || true
}

make_base
say "Taking a copy of it"
rm -rf --one-file-system "$system"
cp -a --reflink=auto "$base" "$system"
enter "$system"
[ -z "$(traces)" ] || die "The fresh system is not fresh: $(traces)"

say "Installing the package"
cp "$package" "$system/tmp/cmped.deb"
inside "$system" apt-get update -q
inside "$system" apt-get install -q -y --no-install-recommends /tmp/cmped.deb
inside "$system" dpkg -L cmped | sort >"$folder/files"
[ -n "$(traces)" ] || die "Nothing was installed."

say "Using it"
inside "$system" useradd --create-home author
cp -R "$game" "$system/home/author/game"
inside "$system" chown -R author: /home/author
cp packaging/try-deb-user.sh "$system/tmp/"
inside "$system" runuser -u author -- env -i PATH=/usr/bin:/bin HOME=/home/author LC_ALL=C.UTF-8 \
    bash /tmp/try-deb-user.sh || die "It can't be used."

say "Removing it"
inside "$system" apt-get purge -q -y cmped
left=$(traces)
[ -z "$left" ] || die "This was left behind: $left"
while read -r file; do
    [ -d "$system$file" ] || [ ! -e "$system$file" ] || die "$file was left behind."
done <"$folder/files"
leave "$system"
rm -rf --one-file-system "$system"
say "The package installs, works and goes again."
