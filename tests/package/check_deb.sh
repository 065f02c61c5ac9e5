#!/usr/bin/env bash
# Checks a built Debian package without installing it: its files, its metadata, lintian, and that
# the binaries' libraries all resolve once unpacked. Usage: tests/package/check_deb.sh ferrow_*.deb
set -euo pipefail
deb=$(realpath "${1:?usage: $0 path/to/ferrow_VERSION_ARCH.deb}")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }

dpkg-deb --info "$deb" >"$scratch/info"
dpkg-deb --contents "$deb" >"$scratch/contents"
dpkg-deb -x "$deb" "$scratch/root"
app=app.ferrow.Ferrow

for path in usr/bin/ferrow usr/bin/ferrow-cli \
    usr/share/applications/$app.desktop usr/share/metainfo/$app.metainfo.xml \
    usr/share/icons/hicolor/scalable/apps/$app.svg \
    usr/share/icons/hicolor/scalable/status/ferrow-bolt-symbolic.svg \
    usr/share/icons/hicolor/scalable/status/ferrow-battery-symbolic.svg \
    usr/share/doc/ferrow/copyright usr/share/doc/ferrow/changelog.gz usr/share/doc/ferrow/OFL.txt; do
    [ -f "$scratch/root/$path" ] || fail "missing /$path"
done
for size in 16 22 24 32 48 64 128 256 512; do
    icon="$scratch/root/usr/share/icons/hicolor/${size}x${size}/apps/$app.png"
    if [ ! -f "$icon" ]; then
        fail "missing the ${size}px icon"
    elif ! file "$icon" | grep -q ", $size x $size,"; then
        fail "the ${size}px icon is $(file -b "$icon")"
    fi
done

# Libraries found by dpkg-shlibdeps, and the platform plugin that no library link names.
depends=$(sed -n 's/^ Depends: //p' "$scratch/info")
for package in libqt6widgets6 libqt6charts6 qt6-qpa-plugins; do
    grep -q "$package" <<<"$depends" || fail "Depends lacks $package: $depends"
done

# The launcher and "Launch at login" must start the same command: the program on the search path.
grep -qx 'Exec=ferrow' "$scratch/root/usr/share/applications/$app.desktop" || fail "the desktop entry's Exec is not 'ferrow'"
desktop-file-validate "$scratch/root/usr/share/applications/$app.desktop" || fail "desktop-file-validate"
appstreamcli validate --no-net --explain "$scratch/root/usr/share/metainfo/$app.metainfo.xml" || fail "appstreamcli validate"

for binary in ferrow ferrow-cli; do
    if ldd "$scratch/root/usr/bin/$binary" | grep 'not found'; then fail "$binary has unresolved libraries"; fi
done
"$scratch/root/usr/bin/ferrow-cli" --source simulated --once >/dev/null || fail "the packaged ferrow-cli does not read"

lintian --fail-on error "$deb" || fail "lintian reports errors"

if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) failed for $deb" >&2
    exit 1
fi
echo "$deb: all package checks passed"
