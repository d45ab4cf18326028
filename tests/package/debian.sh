#!/usr/bin/env bash
# Usage: debian.sh BUILD_DIR COMPILER
# Makes the Debian packages of BUILD_DIR and builds a tool on them, unpacked into an empty root; the
# tool must run where the one for running is unpacked alone.
# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

build_dir=$1
compiler=$2
quietly cpack --config "$build_dir/CPackConfig.cmake" -B "$work"
runtime=$(echo "$work"/libzarn3.3_*.deb)
development=$(echo "$work"/libzarn-dev_*.deb)

# field PACKAGE NAME PATTERN
field() {
    local value
    value=$(dpkg-deb --field "$1" "$2")
    [[ $value =~ $3 ]] || fail "$2 of ${1##*/} is '$value'"
}

field "$runtime" Section '^libs$'
field "$runtime" Depends 'libc6 \(>= .*libstdc\+\+6 \(>= '
field "$development" Section '^libdevel$'
field "$development" Depends "^libzarn3\.3 \(= $(dpkg-deb --field "$runtime" Version)\)$"

dpkg-deb --extract "$runtime" "$work/run"
cp -a "$work/run" "$work/root"
dpkg-deb --extract "$development" "$work/root"
found_by_cmake "$compiler" "$work/root/usr"
found_by_pkg_config "$compiler" "$work/root"

libdir=$(cd "$PKG_CONFIG_LIBDIR/.." && pwd)
rm -r "$work/root"
LD_LIBRARY_PATH=$work/run/${libdir#"$work/root/"} try_tool "$work/by-pkg-config"
[[ -z $(find "$work/run" -name '*.h' -o -name '*.so') ]] || fail "the tools' package carries more"
echo "$compiler: the Debian packages serve"
