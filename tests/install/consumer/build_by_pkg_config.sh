#!/bin/sh
# usage: build_by_pkg_config.sh PREFIX COMPILER [FLAG...]: builds the consumer against the tree below PREFIX and runs
# it; the version record must stand in the program, or in the shared library that it loads.
set -eu
prefix=$1
shift
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name zarvikrt.pc)")
export PKG_CONFIG_PATH
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
# shellcheck disable=SC2046 # flags are words
"$@" "$(dirname "$0")/consumer.cpp" -o "$out/consumer" $(pkg-config --cflags --libs zarvikrt)
libdir=$(pkg-config --variable=libdir zarvikrt)
grep -qs 'Implementation-Title=zarvikrt' "$out/consumer" "$libdir/libzarvikrt.so" || {
  echo "no version record"
  exit 1
}
LD_LIBRARY_PATH=$libdir "$out/consumer"
