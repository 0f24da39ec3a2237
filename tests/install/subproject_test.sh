#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Takes the sources into another project by add_subdirectory: a leaf builds and runs, nothing of how this project compiles
# reaches the other one.
#     subproject_test.sh CMAKE SOURCES COMPILER
set -euo pipefail
cmake=$1 sources=$2 compiler=$3
here=$(cd "$(dirname "$0")" && pwd)
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
fail() { echo "$1" >&2; exit 1; }

launcher=$(command -v ccache || true)
"$cmake" -S "$here/subproject" -B "$dir" -DVAGREL="$sources" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$dir/log" || fail "does not configure"
CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime "$cmake" --build "$dir" --target leaf -j2 >"$dir/log" 2>&1 ||
    { cat "$dir/log"; fail "does not build"; }
[ "$("$dir/leaf")" = 25400 ] || fail "leaf says $("$dir/leaf")"
ours=$(grep -E '"command".*subproject/main.cpp' "$dir/compile_commands.json")
[ "$(wc -l <<<"$ours")" = 2 ] || fail "no commands"
grep -E -- '-W|-ffp-contract|-fvisibility|-fsanitize|-O' <<<"$ours" && fail "options leak"
for target in vagrel_cli vagrel_host gtest benchmark; do
    grep -q "$target" "$dir/compile_commands.json" && fail "a subproject builds $target"
done
echo "all is well"
