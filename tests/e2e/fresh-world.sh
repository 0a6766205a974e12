#!/bin/bash
# fresh-world.sh BUNDLE STORY: runs a Python script of this folder as root on a session bus of its own, where
# "/Applications", "/Library" and root's home are new and empty. The script is handed the path of a copy of the bundle.
# Changes the machine: run it by on-a-copy.
set -eu
work=/tmp/work

mkdir "$work"
cp -rL "$1" "$work/bundle"
cp "$(dirname "$0")"/*.py "$(dirname "$0")"/*.txt "$work"
mkdir -m 1777 /tmp/.X11-unix
for folder in /Applications /Library "$(getent passwd 0 | cut -d: -f6)"; do
    mkdir -p "$folder"
    mount -t tmpfs -o mode=755 fresh "$folder"
done

cd /
# The folder for sockets, if there is one, is not on the copy.
exec env -u XDG_RUNTIME_DIR dbus-run-session -- /usr/bin/python3 "$work/$2" "$work/bundle"
