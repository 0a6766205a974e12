# The Debian packages that the scripts install, and the version of LLVM's tools; read by them with ".", from the source
# folder.
# shellcheck shell=sh disable=SC2034
llvm=$(sed -n 's/.*"clang++-\([0-9]*\)".*/\1/p' CMakePresets.json)
build_packages="cmake ninja-build g++ pkg-config libutf8proc-dev libexpected-dev libcli11-dev nlohmann-json3-dev
    libarchive-dev libtomlplusplus-dev libgtest-dev libgmock-dev libbenchmark-dev qt6-base-dev qt6-svg-dev qt6-wayland
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools"
window_packages="xvfb xauth fonts-dejavu-core fonts-liberation"
test_packages="$build_packages $window_packages clang-$llvm clang-tidy-$llvm clang-format-$llvm libclang-rt-$llvm-dev
    libc++-$llvm-dev libc++abi-$llvm-dev googletest lua5.4 dbus polkitd pkexec passwd desktop-file-utils appstream
    lintian dpkg-dev zstd at-spi2-core python3 python3-dbus python3-gi python3-pyatspi python3-xlib xdotool xclip openbox
    x11-utils weston"
