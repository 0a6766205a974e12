# The Debian packages that the tests need, and the version of LLVM's tools; read with ".", from the source folder.
# shellcheck shell=sh disable=SC2034
llvm=$(sed -n 's/.*"clang++-\([0-9]*\)".*/\1/p' CMakePresets.json)
test_packages="$(sed -n '/^#/!s/^[a-z]* *[a-z]* *[^ ]* *\([^ ]*\).*/\1/p' scripts/needs | sort -u) libgtest-dev
    libgmock-dev libbenchmark-dev clang-$llvm clang-tidy-$llvm clang-format-$llvm libclang-rt-$llvm-dev
    libc++-$llvm-dev libc++abi-$llvm-dev googletest lua5.4 dbus polkitd pkexec passwd desktop-file-utils appstream
    lintian rpm rpmlint diffoscope-minimal gpg gpg-agent dpkg-dev zstd at-spi2-core python3 python3-dbus python3-gi python3-pyatspi python3-xlib xdotool xclip
    openbox x11-utils weston mmdebstrap man-db ansible-core dropbear-bin openssh-client openssh-sftp-server python3-apt sudo"
