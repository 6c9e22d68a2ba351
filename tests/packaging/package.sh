#!/usr/bin/env bash
# Checks what ./release makes:  ./test package
# Two builds in different places give the same bytes; lintian and flatpak-builder have no complaint; and in a bare Debian
# the package is installed, started, upgraded and removed. What can't be done here is reported as NOT RUN, and then the
# exit status is 2.
set -uo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$top/tests/packaging/bare_debian.sh"
work=$top/build/package
version=$(<"$top/VERSION")
status=0

report() { printf '%-8s %s\n' "$1" "$2"; }
failed() {
    report FAILED "$1"
    status=1
}
not_run() {
    report "NOT RUN" "$1"
    [ $status = 1 ] || status=2
}
# check NAME COMMAND...: what the command prints is shown when it fails.
check() {
    local name=$1
    shift
    if "$@" >"$work/log" 2>&1; then report passed "$name"; else
        failed "$name"
        sed 's/^/    /' "$work/log"
    fi
}

# release_in FOLDER: a clone of the last commit, built there.
release_in() {
    rm -rf "$1"
    git -c safe.directory='*' clone --quiet "$top" "$1" && "$1/release" "$1/dist"
}
same_bytes() {
    local file
    for file in "$first"/dist/*; do cmp "$file" "$second/dist/${file##*/}" || return 1; done
}
no_path_inside() {
    rm -rf "$work/unpacked"
    dpkg-deb -x "$package" "$work/unpacked"
    ! grep -rlF -e "$top" -e "$first" "$work/unpacked"
}
small_enough() {
    local size
    size=$(stat -c %s "$package")
    echo "$size bytes"
    [ "$size" -lt 6000000 ]
}
silent() { # COMMAND...: succeeds without a word of complaint
    local said
    said=$("$@" 2>&1 >/dev/null) && [ -z "$said" ] || { printf '%s\n' "$said" && return 1; }
}

rm -rf "$work"
mkdir -p "$work"
first=$work/first
second=$work/second/in/another/place
check "the release is built" release_in "$first"
package=$first/dist/tarvex_${version}_amd64.deb
[ -f "$package" ] || exit 1
check "it is built again elsewhere, without the compiler cache" env CCACHE_DISABLE=1 bash -c \
    "$(declare -f release_in); top='$top'; release_in '$second'"
check "both builds have the same bytes" same_bytes
check "no path of the build is in the package" no_path_inside
check "lintian has no errors and no warnings" lintian --allow-root --fail-on error,warning "$package"
check "the package is smaller than 6 MB" small_enough
check "flatpak-builder takes the manifest" silent env -C "$work" flatpak-builder --show-manifest \
    "$top/packaging/flatpak/org.tarvex.Tarvex.yml"
if [ "$(id -u)" != 0 ]; then
    not_run "installation, start, upgrade and removal in a bare Debian: needs root"
elif ! bare_debian "$work/base" "$work/root"; then
    not_run "installation, start, upgrade and removal in a bare Debian: there is none"
else
    check_in_bare_debian "$package"
fi
exit $status
