// A global locale unlike the classic one, which no machine needs to have installed.

#ifndef ZARN_TESTS_SUPPORT_GROUPING_LOCALE_H
#define ZARN_TESTS_SUPPORT_GROUPING_LOCALE_H

#include <functional>
#include <locale>
#include <string>
#include <utility>
#include <vector>

// While it lives, numbers are written as 1.234.567,5 and the byte A0 is white space. Before a whole
// number is read, `meddle` is called.
class GroupingLocale {
public:
    explicit GroupingLocale(std::function<void()> meddle = [] {}) {
        const std::locale reading(before, new Reading(std::move(meddle)));
        std::locale::global(std::locale({reading, new Grouping}, new NoBreakSpace));
    }
    GroupingLocale(const GroupingLocale&) = delete;
    GroupingLocale& operator=(const GroupingLocale&) = delete;
    ~GroupingLocale() { std::locale::global(before); }

private:
    struct Grouping final : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    struct Reading final : std::num_get<char> {
        explicit Reading(std::function<void()> before) : meddle(std::move(before)) {}
        iter_type do_get(iter_type at,
                         iter_type end,
                         std::ios_base& stream,
                         std::ios_base::iostate& error,
                         long& number) const override {
            meddle();
            return std::num_get<char>::do_get(at, end, stream, error, number);
        }
        std::function<void()> meddle;
    };

    struct NoBreakSpace final : std::ctype<char> {
        NoBreakSpace() : std::ctype<char>(masks()) {}
        static const mask* masks() {
            static std::vector<mask> table(classic_table(), classic_table() + table_size);
            table[0xA0] = space;
            return table.data();
        }
    };

    std::locale before;
};

#endif  // ZARN_TESTS_SUPPORT_GROUPING_LOCALE_H
