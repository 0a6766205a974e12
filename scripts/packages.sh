# The Debian packages that the scripts install; read by them with ".".
# shellcheck shell=sh disable=SC2034
build_packages="cmake ninja-build g++ pkg-config libutf8proc-dev libexpected-dev libgtest-dev libgmock-dev libbenchmark-dev
    qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools"
window_packages="xvfb xauth fonts-dejavu-core fonts-liberation"
test_packages="$build_packages $window_packages clang-19 clang-tidy-19 clang-format-19 libclang-rt-19-dev libc++-19-dev libc++abi-19-dev googletest lua5.4
    dbus polkitd pkexec passwd desktop-file-utils appstream lintian dpkg-dev zstd
    at-spi2-core python3 python3-dbus python3-pyatspi python3-xlib xdotool xclip openbox"
