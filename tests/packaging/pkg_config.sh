#!/bin/bash
# Builds and runs the consumers by pkg-config.   usage: pkg_config.sh LIBDIR SOURCES
set -euo pipefail
libdir=$1 sources=$2
programs=$(mktemp -d)
trap 'rm -r "$programs"' EXIT

read -ra flags <<<"$(PKG_CONFIG_PATH=$libdir/pkgconfig pkg-config --cflags --libs zors)"
warnings=(-Wall -Wextra -Werror)
set -x
"$CC" -std=c99 "${warnings[@]}" "$sources/consumer.c" "${flags[@]}" -o "$programs/c"
"$CXX" -std=c++11 "${warnings[@]}" "$sources/consumer.cpp" "${flags[@]}" -o "$programs/cpp"
LD_LIBRARY_PATH=$libdir "$programs/c"
LD_LIBRARY_PATH=$libdir "$programs/cpp"
