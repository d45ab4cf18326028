#!/usr/bin/env bash
# Usage: installed.sh BUILD_DIR COMPILER...   (of an optimised build: others name their sources)
# Installs BUILD_DIR, moves what was installed, and builds and runs a tool on it with each compiler:
# through the CMake package, through pkg-config, and with the undefined behaviour sanitizer; then
# one that loads and unloads the library.
# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

build_dir=$1
shift
quietly cmake --install "$build_dir" --prefix "$work/first"
mv "$work/first" "$work/moved"
! grep -rla -e "$work" -e "$(cd "$build_dir" && pwd)" "$work/moved" ||
    fail "the files above name the place where they were built or installed"

[[ -s $work/moved/share/doc/zarn/docs/guide/index.md ]] || fail "there is no guide"
for compiler in "$@"; do
    found_by_cmake "$compiler" "$work/moved"
    found_by_pkg_config "$compiler" "$work/moved"
    found_by_pkg_config "$compiler" "$work/moved" -fsanitize=undefined -fno-sanitize-recover=all
    flags_of_package --cflags
    quietly "$compiler" -std=c++17 "${flags[@]}" -I"$here/.." "$here/reload.cpp" \
        "$here/../support/failing_new.cpp" -o "$work/reload" -ldl
    quietly "$work/reload" "$(libdir_of_package)/libzarn.so"
    echo "$compiler: the package serves through CMake, pkg-config and with the sanitizer"
done
