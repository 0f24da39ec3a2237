#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs a build into a prefix and builds a consumer there, with the compiler of the build and with the other one.
#     consumer_test.sh CMAKE BUILD COMPILER SANITIZERS
set -euo pipefail
cmake=$1 build=$2 compiler=$3 sanitizers=$4
here=$(cd "$(dirname "$0")" && pwd)
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
fail() { echo "$1" >&2; exit 1; }

DESTDIR='' "$cmake" --install "$build" --prefix "$dir/prefix" >"$dir/log" || { cat "$dir/log"; exit 1; }
cd "$dir"
find prefix/include -name '*_p.h' | grep . && fail "private headers are installed"
prefix/bin/vagrel new -o empty.json
export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$dir/prefix" -name vagrel.pc)")

flags=${sanitizers:+-fsanitize=$sanitizers}
compilers=("$compiler")
# Compilers have sanitizers of their own, which do not mix.
if [ -z "$sanitizers" ]; then
    for other in g++ clang++; do
        path=$(command -v $other) && [ "$(readlink -f "$path")" != "$(readlink -f "$compiler")" ] && compilers+=($other)
    done
fi
for each in "${compilers[@]}"; do
    echo "== $each"
    name=$(basename "$each")
    "$cmake" -S "$here/consumer" -B "$name" -DCMAKE_CXX_COMPILER="$each" -DCMAKE_PREFIX_PATH="$dir/prefix" \
        -DCMAKE_CXX_FLAGS="$flags" >log && "$cmake" --build "$name" -j2 >log 2>&1 || { cat log; fail "no consumer"; }
    [ "$("$name/core")" = $'5901234123457\nThe text cannot be empty' ] || fail "core says $("$name/core")"
    "$name/host" | grep -q '<circle ' || fail "no circle"
    head -c 5 circle.pdf | grep -q %PDF || fail "no PDF"
done

echo "== pkg-config; all of core"
# shellcheck disable=SC2046
"$compiler" $flags "$here/consumer/core.cpp" $(pkg-config --cflags vagrel) -o all \
    -Wl,--whole-archive $(pkg-config --libs vagrel) -Wl,--no-whole-archive -Wl,-rpath,"$(pkg-config --variable=libdir vagrel)"
./all >/dev/null
library=$(find prefix -name 'libvagrel.so')
needed=$(readelf -d all ${library:+"$library"} | sed -n 's/.*NEEDED.*\[\(.*\)\]/\1/p' |
    grep -vE '^(libstdc\+\+|libm|libgcc_s|libc|libpthread|libasan|libubsan|libtsan|libvagrel|ld-linux.*)\.so' || true)
[ -z "$needed" ] || fail "core needs $needed"
if [ -n "$library" ]; then
    foreign=$(nm -DC --defined-only "$library" | cut -d' ' -f3- | grep -v 'vagrel' || true)
    [ -z "$foreign" ] || fail "the library shows $foreign"
fi

echo "== without a component that is not there"
sed 's/core host/core weather/' "$here/consumer/CMakeLists.txt" >CMakeLists.txt
"$cmake" -S . -B weather -DCMAKE_PREFIX_PATH="$dir/prefix" >log 2>&1 && fail "found a component that does not exist"
grep -q weather log || { cat log; fail "does not name what is missing"; }
echo "all is well"
