# The Debian packages that the scripts install; read by them with ".".
# shellcheck shell=sh disable=SC2034
build_packages="cmake ninja-build g++ pkg-config libutf8proc-dev libgtest-dev libgmock-dev libbenchmark-dev"
test_packages="$build_packages clang clang-tidy clang-format libclang-rt-14-dev lua5.4"
