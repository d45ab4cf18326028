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

# refused_by_zarn_tool SOURCE ARGUMENTS TEXT: such a tool does not build, for this reason.
refused_by_zarn_tool() {
    local project=$work/refused
    rm -rf "$project"
    mkdir "$project"
    cp "$1" "$project/tool.cpp"
    {
        head -n 3 "$here/CMakeLists.txt"
        echo 'find_package(zarn 3.3 REQUIRED)'
        echo 'add_executable(refused tool.cpp)'
        echo 'target_link_libraries(refused PRIVATE zarn::zarn)'
        echo "zarn_tool(refused $2)"
    } >"$project/CMakeLists.txt"
    quietly cmake -S "$project" -B "$project/build" -DCMAKE_PREFIX_PATH="$work/moved"
    ! cmake --build "$project/build" >"$work/log" || fail "zarn_tool takes: $3"
    grep -qF "refused $3" "$work/log" || fail "zarn_tool does not say '$3': $(cat "$work/log")"
}

# Links of the installed pages, code apart, lead to what is installed.
pages=$work/moved/share/doc/zarn
[[ -s $pages/docs/guide/index.md ]] || fail "there is no guide"
while IFS=: read -r page link; do
    [[ -e $(dirname "$page")/$link ]] || fail "${page#"$pages"/} leads to $link, which is not installed"
done < <(find "$pages" -name '*.md' -exec sed -i '/^```/,/^```$/d' {} + \
    -exec grep -oP '\]\(\K(?!https?:)[^)# ]+(?=[)#])' /dev/null {} +)
echo 'int main() { return 2; }' >"$work/mute.cpp"
refused_by_zarn_tool "$work/mute.cpp" '' \
    "does not answer '--zarn-answer describe' (it ended with 2)."
refused_by_zarn_tool "$here/consumer.cpp" 'VERSION 1.1' \
    "has the version '1.0', where zarn_tool was told '1.1'."
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
