#!/usr/bin/env bash
# What compiles and what does not. Usage, from the root: compile_test.sh COMPILER
set -uo pipefail
compiler=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0
all=()
if [[ $compiler == *clang* ]]; then
    all=(-ferror-limit=0)
fi

# compile STANDARD CODE...: what the compiler says.
compile() {
    local standard=$1
    shift
    printf '%s\n' "$@" >"$scratch/code.cpp"
    "$compiler" "-std=c++$standard" -fsyntax-only "${all[@]}" -Iinclude -Wall -Wextra -Wpedantic -Wconversion \
        -Wshadow -Wold-style-cast -Werror "$scratch/code.cpp" 2>&1
}

fail() {
    printf 'FAILED: %s\n%s\n' "$1" "$2"
    failures=$((failures + 1))
}

# Every public header alone, and all of them in every standard.
while IFS= read -r header; do
    said=$(compile 17 "#include <${header#include/}>") || fail "$header" "$said"
done < <(find include -name '*.h')
for standard in 20 2b; do
    said=$(compile $standard '#include <zarn/typed.h>') || fail "C++$standard" "$said"
done
said=$(compile 14 '#include <zarn/zarn.h>') && fail 'C++14' 'it compiles'
grep -qF 'zarn needs C++17: compile with -std=c++17' <<<"$said" || fail 'C++14' "$said"

# Every mistake that the compiler can see is refused, with its reason.
rows='a boolean are true and false|zarn::option<bool>("x", "").byDefault("false");
a signed number may not fit this option|zarn::option<unsigned>("x", "").byDefault(-3);
the values of this option are numbers|zarn::option<int>("x", "").byDefault("3");
the values of this option are whole numbers|zarn::option<int>("x", "").atLeast(3.5);
the values of this option are texts|zarn::option<std::string>("x", "").allow({1});
the type it is declared with|zarn::option<E>("x", "").byDefault("a");
write zarn::Bytes{64 << 10}|zarn::option<zarn::Bytes>("x", "").atLeast(64 << 10);
write std::chrono::seconds(5)|zarn::option<std::chrono::minutes>("x", "").between(1, 60);
a switch takes no value|zarn::option("x", "").byDefault(true);
for a switch a bool or an integer|int i; zarn::option<bool>("x", "").into(i);
an enumeration allows the names of its table|zarn::option<E>("x", "").allow({E::a});
no values have this type|zarn::option<wchar_t>("x", "");
the values of this option are characters|zarn::option<char>("x", "").byDefault(65);
bounds are for numbers|zarn::option<std::string>("x", "").between("a", "b");
only texts and paths name files|zarn::option<int>("x", "").existingFile();
taken from the environment: use option<bool>|zarn::option("x", "").fromEnvironment("X");
a boolean takes no value|zarn::option<bool>("x", "").withoutValue(true);
stores() is for switches|int i; zarn::option<int>("x", "").stores(i, 1);
which a vector is not|std::vector<E> v; zarn::option("x", "").stores(v, E::a);
a constant of the type of its variable|int i; zarn::option("x", "").stores(i, "x");
a switch has no value to check|zarn::option("x", "").check([](int) { return true; }, "");
a check keeps no state|zarn::option<int>("x", "").check([n = 0](int) mutable { return ++n < 3; }, "");
a check of the command line is called without|zarn::Parser().check([](int) { return true; }, "");
a check without a reason returns one|zarn::Parser().check([] { return true; });
a positional item takes values|zarn::positional<bool>("x", "");
a check is called with a value|zarn::option<int>("x", "").check([](std::string) { return true; }, "");
nodiscard|zarn::Parser().parse(0, nullptr);'
code=('#include <zarn/typed.h>' '#include <chrono>' 'enum class E { a };'
    'template <> struct zarn::Names<E> { static constexpr zarn::Name<E> table[] = {{"a", E::a}}; };')
while IFS='|' read -r _ statement; do
    code+=("void mistake${#code[@]}() { $statement }")
done <<<"$rows"
said=$(compile 17 "${code[@]}")
while IFS='|' read -r message statement; do
    grep -qF "$message" <<<"$said" || fail "$statement" "$said"
done <<<"$rows"

((failures == 0)) && echo 'All checks passed.'
