#!/usr/bin/env bash
# Builds the package for Debian from scratch and leaves it in build/. Needs what building needs
# (packaging/debian-packages.txt) and dpkg-dev; lintian looks at it if it is there.
#   packaging/make-deb.sh
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

command -v dpkg-shlibdeps >/dev/null || die "Please install dpkg-dev."
folder=build/package

say "Building what is packed"
rm -rf "$folder"
# Addresses that are settled at the start can't be changed behind it.
cmake --preset release -B "$folder" -DCMAKE_INSTALL_PREFIX=/usr \
    -DCMAKE_EXE_LINKER_FLAGS=-Wl,-z,relro,-z,now -DCMAKE_SHARED_LINKER_FLAGS=-Wl,-z,relro,-z,now \
    >build/configure-package.log 2>&1 || { cat build/configure-package.log >&2; die "Configuring failed."; }
cmake --build "$folder" --target cmped_system_files

say "Packing it"
(umask 022 && cpack --config "$folder/CPackConfig.cmake" -B "$folder/packed")
package=$(find "$folder/packed" -maxdepth 1 -name '*.deb')
mv "$package" build/
package=build/${package##*/}

if command -v lintian >/dev/null; then
    say "Looking at it with lintian"
    lintian --info --fail-on error,warning "$package"
fi
say "The package is $package"
