#!/bin/bash
# fresh-world.sh BUNDLE STORY: runs a Python script of this folder as root in a mount namespace of its own, where
# "/Applications", "/Library", root's home and the sockets of displays are new and empty, on a session bus of its own.
# The script is handed the path of a copy of the bundle. Exits with 77, which ctest counts as skipped, for anybody but
# root.
set -eu
[ "$(id -u)" = 0 ] || exit 77

work=$(mktemp -d)
made=()
leave() {
    [ ${#made[@]} = 0 ] || rmdir --ignore-fail-on-non-empty "${made[@]}"
    rm -r "$work"
}
trap leave EXIT

cp -rL "$1" "$work/bundle"
cp "$(dirname "$0")"/*.py "$(dirname "$0")"/*.txt "$work"
for folder in /Applications /Library; do
    [ -d "$folder" ] || { mkdir "$folder"; made+=("$folder"); }
done

unshare --mount --propagation private bash -euc '
    mkdir -p /tmp/.X11-unix
    for folder in /Applications /Library /tmp/.X11-unix "$(getent passwd 0 | cut -d: -f6)"; do
        mount -t tmpfs -o mode=755 fresh "$folder"
    done
    cd /
    dbus-run-session -- /usr/bin/python3 "$1/$2" "$1/bundle"
' fresh-world "$work" "$2"
