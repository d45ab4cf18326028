#!/usr/bin/env bash
# Usage: run.sh BUILD_DIR COMPILER...
# Installs BUILD_DIR, moves what was installed, and builds and runs a tool on it with each compiler:
# through the CMake package, through pkg-config, and with the undefined behaviour sanitizer. Compiles
# each header alone.
set -euo pipefail

build_dir=$1
shift
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "package: $*" >&2
    exit 1
}

# expect CODE OUTPUT COMMAND...: OUTPUT is all that the command prints, on either stream.
expect() {
    local code=$1 output=$2 actual status=0
    shift 2
    actual=$("$@" 2>&1) || status=$?
    [[ $status == "$code" && $actual == "$output" ]] ||
        fail "'${*#"$work"/}' gave $status and '$actual', expected $code and '$output'"
}

try_tool() {
    expect 0 $'Hello, Anna, loud\nHello, Anna, loud\nNote: that was all' \
        "$1" --name Anna --co=2 --tone lou
    expect 0 $'Hello, world, normal\nNote: that was all' "$1"
    expect 1 "Value '/etc' is not valid for option 'name' in argument '--name=/etc'" \
        "$1" --name=/etc
    expect 2 "Unknown option: --nmae" "$1" --nmae Anna
}

warnings=(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror)

# Alone, and twice, which its guard must stand.
compile_headers() {
    local compiler=$1 header standard
    for header in "${headers[@]}"; do
        for standard in c++17 c++20; do
            printf '#include <%s>\n' "$header" "$header" |
                "$compiler" -std="$standard" "${warnings[@]}" -I "$includedir" -fsyntax-only -x c++ - ||
                fail "$compiler, $standard: $header does not stand alone"
        done
    done
    echo "$compiler: ${#headers[@]} headers stand alone"
}

cmake --install "$build_dir" --prefix "$work/first" >"$work/log" || fail "$(cat "$work/log")"
mv "$work/first" "$work/moved"
pc_file=$(find "$work/moved" -name zarn.pc)
libdir=$(dirname "$(dirname "$pc_file")")
export PKG_CONFIG_PATH=${pc_file%/*}
includedir=$(pkg-config --variable=includedir zarn)
mapfile -t headers < <(cd "$includedir" && find . -name '*.h' -printf '%P\n')
((${#headers[@]} > 0)) || fail "no headers in $includedir"
[[ $(pkg-config --modversion zarn) == 3.3.* ]] || fail "pkg-config does not know the version"
! grep -rIl -e "$work" -e "$(cd "$build_dir" && pwd)" "$work/moved" ||
    fail "the files above name the place where they were built or installed"

for compiler in "$@"; do
    build=$work/$compiler
    cmake -S "$here" -B "$build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_PREFIX_PATH="$work/moved" >"$work/log" 2>&1 &&
        cmake --build "$build" >"$work/log" 2>&1 || fail "$compiler: $(cat "$work/log")"
    try_tool "$build/consumer"

    for extra in "" -fsanitize=undefined; do
        # shellcheck disable=SC2046,SC2086 # several words are meant
        "$compiler" -std=c++17 -Wall -Wextra -Werror $extra -fno-sanitize-recover=all \
            "$here/consumer.cpp" -o "$build/by-pkg-config" \
            $(pkg-config --cflags --libs zarn) -Wl,-rpath,"$libdir"
        try_tool "$build/by-pkg-config"
    done
    compile_headers "$compiler"
    echo "$compiler: the package serves through CMake, pkg-config and with the sanitizer"
done
