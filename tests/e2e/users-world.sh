#!/bin/bash
# users-world.sh BUNDLE STORY: runs a Python script of this folder as the user "installer-test" on a session bus of its
# own. The script is handed the path of a copy of the bundle, which belongs to root, that of the agent that answers
# password windows, and a folder: while it holds a file "wanted", copies wait, and a file "held" is there as well.
# Changes the machine: run it by on-a-copy and with-polkit.
set -eu
bundle=/opt/corvellane
hold=/tmp/hold

here=$(dirname "$0")
stories=/opt/stories
mkdir "$stories"
cp "$here"/*.py "$here/../polkit/polkit-test-agent" "$stories"
cp -rL "$1" "$bundle"
mkdir -p "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane" \
    "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane"
mkdir -m 1777 /tmp/.X11-unix "$hold"
mv /bin/cp /bin/real-cp
cat >/bin/cp <<END
#!/bin/sh
[ ! -e $hold/wanted ] || : >$hold/held
while [ -e $hold/wanted ]; do sleep 0.01; done
real-cp "\$@"
status=\$?
rm -f $hold/held
exit \$status
END
chmod 755 /bin/cp

cd /
exec setpriv --reuid installer-test --regid installer-test --init-groups env -i PATH=/usr/bin:/bin \
    HOME="$(getent passwd installer-test | cut -d: -f6)" LANG=C.UTF-8 ASAN_OPTIONS=detect_leaks=0 \
    dbus-run-session -- /usr/bin/python3 "$stories/$2" "$bundle" "$stories/polkit-test-agent" "$hold"
