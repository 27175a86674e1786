#!/bin/sh
# usage: build_by_pkg_config.sh PREFIX COMPILER [FLAG...]: builds the consumer against the tree below PREFIX and runs
# it; its version record must have come along with the library.
set -eu
prefix=$1
shift
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name zarvikrt.pc)")
export PKG_CONFIG_PATH
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
# shellcheck disable=SC2046 # flags are words
"$@" "$(dirname "$0")/consumer.cpp" -o "$out/consumer" $(pkg-config --cflags --libs zarvikrt)
grep -q 'Implementation-Title=zarvikrt' "$out/consumer" || { echo "no version record in the program"; exit 1; }
LD_LIBRARY_PATH=$(pkg-config --variable=libdir zarvikrt) "$out/consumer"
