# For the scripts beside this one: a place to work in, and the tool that each of them builds.
# shellcheck shell=bash
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export CMAKE_GENERATOR=Ninja
export SOURCE_DATE_EPOCH=0  # of the manual pages

fail() {
    echo "package: $*" >&2
    exit 1
}

# quietly COMMAND...: shows what it printed only when it fails.
quietly() {
    "$@" >"$work/log" 2>&1 || fail "$* gave $?: $(cat "$work/log")"
}

# expect CODE OUTPUT COMMAND...: OUTPUT is all that the command prints, on either stream.
expect() {
    local code=$1 output=$2 actual status=0
    shift 2
    actual=$("$@" 2>&1) || status=$?
    [[ $status == "$code" && $actual == "$output" ]] ||
        fail "'${*#"$work"/}' gave $status and '$actual', expected $code and '$output'"
}

# Streams that cannot be written change no parse, and with the log neither.
cannot_be_heard() {
    local code=0
    "$1" zarnoption=zarnlogenable=1 --name Anna &&
        "$1" zarnoption=zarnlogenable=1 --nmae Anna || code=$?
    ((code == 2))
}

try_tool() {
    expect 0 $'Hello, Anna, loud\nHello, Anna, loud\nNote: that was all' \
        "$1" --name Anna --co=2 --tone lou
    expect 0 $'Hello, world, normal\nNote: that was all' "$1"
    expect 1 "Value '/etc' is not valid for option 'name' in argument '--name=/etc'" \
        "$1" --name=/etc
    expect 2 "Unknown option: --nmae" "$1" --nmae Anna
    cannot_be_heard "$1" >&- 2>&- || fail "closed streams change a parse"
    cannot_be_heard "$1" >/dev/full 2>/dev/full || fail "a full disk changes a parse"
}

# found_by_cmake COMPILER PREFIX: builds and runs the tool on what is installed in PREFIX.
found_by_cmake() {
    local build=$work/by-cmake
    rm -rf "$build"
    quietly cmake -S "$here" -B "$build" -DCMAKE_CXX_COMPILER="$1" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_PREFIX_PATH="$2" -Dbaseline="$work/baseline.json"
    quietly cmake --build "$build"
    try_tool "$build/consumer"
    quietly cmake --install "$build" --prefix "$work/tools"
    comes_with_its_files "$work/tools" "$build/consumer"
    comes_with_its_pages "$work/tools" "$build/consumer" "$2/bin/zarn-vocabulary"
    is_held_to_its_promises "$build"
}

# is_held_to_its_promises BUILD: the tests that zarn_tool adds pass, until the tool lacks something
# of its baseline; then they say how to accept that.
is_held_to_its_promises() {
    local baseline=$work/baseline.json
    "$1/consumer" --zarn-answer describe >"$baseline"
    quietly ctest --test-dir "$1" -R '^consumer\.(check|baseline)$' --no-tests=error
    grep -q '100% tests passed, 0 tests failed out of 2' "$work/log" || fail "zarn_tool adds no tests"
    sed -i 's/"tone"/"tune"/' "$baseline"
    ! ctest --test-dir "$1" -R baseline --output-on-failure >"$work/log" 2>&1 ||
        fail "what is gone is not missed"
    grep -qF "breaking item-gone 'tune'" "$work/log" ||
        fail "the baseline test does not say what is gone: $(cat "$work/log")"
    # The way out that it names.
    eval "$(grep -o "cmake -E copy '.*" "$work/log")"
    quietly ctest --test-dir "$1" -R baseline
    rm "$baseline"
    quietly grep -F 'There is no file' <(ctest --test-dir "$1" -R baseline --output-on-failure 2>&1)
}

# comes_with_its_files PREFIX TOOL: the description installed in PREFIX is what the tool answers, and
# the scripts are those of this tool. Takes them away.
comes_with_its_files() {
    local share=$1/share script
    diff "$share/zarn/consumer.json" <("$2" --zarn-answer describe) ||
        fail "the installed description is not what the tool answers"
    rm "$share/zarn/consumer.json"
    for script in bash-completion/completions/consumer zsh/site-functions/_consumer \
        fish/vendor_completions.d/consumer.fish; do
        diff <(sed 's/@tool@/consumer/g' "$here/../../completion/tool.${script%%[-/]*}.in") \
            "$share/$script" || fail "$script is not the script of this tool"
        rm "$share/$script"
    done
}

# comes_with_its_pages PREFIX TOOL PROGRAM: the pages installed in PREFIX are those that the program
# makes of what the tool answers. Takes them away.
comes_with_its_pages() {
    "$2" --zarn-answer describe >"$work/consumer.json"
    diff "$1/share/man/man1/consumer.1" <("$3" --man "$work/consumer.json") &&
        diff "$1/share/doc/consumer/consumer.md" <("$3" --markdown "$work/consumer.json") ||
        fail "the installed pages are not those of this tool"
    rm "$1/share/man/man1/consumer.1" "$1/share/doc/consumer/consumer.md"
}

# found_by_pkg_config COMPILER PREFIX [FLAG...]: the same with a bare call of the compiler.
found_by_pkg_config() {
    local compiler=$1
    use_pkg_config "$2"
    shift 2
    flags_of_package --cflags --libs
    quietly "$compiler" -std=c++17 -Wall -Wextra -Werror "$@" "$here/consumer.cpp" \
        -o "$work/by-pkg-config" "${flags[@]}" -Wl,-rpath,"$(libdir_of_package)"
    try_tool "$work/by-pkg-config"
}

# flags_of_package OPTION...: what pkg-config answers, in `flags`.
flags_of_package() {
    # shellcheck disable=SC2162 # backslashes stand before blanks in paths
    read -a flags < <(pkg-config "$@" zarn)
}

libdir_of_package() {
    pkg-config --variable=libdir zarn | sed 's/\\ / /g'
}

# use_pkg_config PREFIX: from now on pkg-config knows the zarn in PREFIX and nothing else.
use_pkg_config() {
    local file
    file=$(find "$1" -name zarn.pc)
    export PKG_CONFIG_LIBDIR=${file%/*}
    [[ $(pkg-config --modversion zarn) == 3.3.* ]] || fail "pkg-config does not know the version"
}
