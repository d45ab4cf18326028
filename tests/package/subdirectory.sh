#!/usr/bin/env bash
# Usage: subdirectory.sh BUILD_DIR COMPILER
# Builds the library in BUILD_DIR as a static part of another project, and runs its tool; then uses
# what that project installs, also into directories that were given as absolute ones.
# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

build_dir=$1
compiler=$2

# installed_into LIBDIR INCLUDEDIR PREFIX PROGRAMS: the directories are those of the configuration;
# PROGRAMS says whether zarn-vocabulary is built.
installed_into() {
    quietly cmake -S "$here/subdirectory" -B "$build_dir" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_CXX_FLAGS=-O0 -DCMAKE_UNITY_BUILD=ON -DBUILD_SHARED_LIBS=OFF \
        -DCMAKE_INSTALL_PREFIX="$work/first" -DCMAKE_INSTALL_LIBDIR="$1" \
        -DCMAKE_INSTALL_INCLUDEDIR="$2" -DZARN_BUILD_PROGRAMS="$4" -Dbaseline="$work/baseline.json"
    cp "$work/log" "$work/configured"
    quietly cmake --build "$build_dir"
    quietly cmake --install "$build_dir" --prefix "$3"
}

# A library that has zarn inside keeps it to itself; a linker for C links it as well.
is_a_good_part() {
    flags_of_package --static --cflags --libs
    quietly "$compiler" -std=c++17 -fPIC -fvisibility=hidden "${flags[@]}" \
        -c "$here/consumer.cpp" -o "$work/consumer.o"
    quietly cc -shared "$work/consumer.o" -o "$work/host.so" "${flags[@]}" -Wl,--no-undefined
    ! nm -D --demangle --defined-only "$work/host.so" | grep -E ' [A-Z] (zarn_3_3|plinth2)::' ||
        fail "a library offers what it has inside"
}

installed_into "$work/first/lib" "$work/first/headers" "$work/second" ON
try_tool "$build_dir/consumer"
comes_with_its_files "$work/second" "$build_dir/consumer"
comes_with_its_pages "$work/second" "$build_dir/consumer" "$build_dir/zarn/zarn-vocabulary"
is_held_to_its_promises "$build_dir"
[[ ! -e $build_dir/zarn/tests && ! -e $build_dir/zarn/examples ]] ||
    fail "more than the library is built by those who did not ask"
mv "$work/second" "$work/moved"
[[ -f $work/moved/lib/libzarn.a && -f $work/moved/headers/zarn/zarn.h ]] ||
    fail "absolute directories inside the prefix do not move with it"
found_by_cmake "$compiler" "$work/moved"
found_by_pkg_config "$compiler" "$work/moved"
is_a_good_part

installed_into "$work/outside/lib" "$work/outside/include" "$work/third" OFF
grep -q "no pages about 'consumer', since there is no zarn-vocabulary" "$work/configured" &&
    [[ ! -e $work/third/share/man && ! -e $work/third/share/doc/consumer ]] ||
    fail "pages come from nowhere"
grep -q "'consumer' is not compared with its baseline" "$work/configured" ||
    fail "nobody hears that nothing is compared"
found_by_pkg_config "$compiler" "$work/outside"
echo "$compiler: the library serves as a part of another project"
