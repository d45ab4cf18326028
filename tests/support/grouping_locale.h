// A global locale unlike the classic one, which no machine needs to have installed.

#ifndef ZARN_TESTS_SUPPORT_GROUPING_LOCALE_H
#define ZARN_TESTS_SUPPORT_GROUPING_LOCALE_H

#include <algorithm>
#include <array>
#include <locale>
#include <string>

// While it lives, numbers are written as 1.234.567,5 and the byte A0 is white space.
class GroupingLocale {
public:
    GroupingLocale()
        : before(std::locale::global(
              std::locale(std::locale(std::locale(), new Grouping), new NoBreakSpace))) {}
    GroupingLocale(const GroupingLocale&) = delete;
    GroupingLocale& operator=(const GroupingLocale&) = delete;
    ~GroupingLocale() { std::locale::global(before); }

private:
    class Grouping final : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    class NoBreakSpace final : public std::ctype<char> {
    public:
        NoBreakSpace() : std::ctype<char>(masks().data()) {}

    private:
        static const std::array<mask, table_size>& masks() {
            static const std::array<mask, table_size> table = [] {
                std::array<mask, table_size> made{};
                std::copy(classic_table(), classic_table() + table_size, made.begin());
                made[0xA0] = space;
                return made;
            }();
            return table;
        }
    };

    std::locale before;
};

#endif  // ZARN_TESTS_SUPPORT_GROUPING_LOCALE_H
