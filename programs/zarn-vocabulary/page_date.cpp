#include "page_date.h"

#include <charconv>
#include <stdexcept>

namespace vocabulary {
namespace {

constexpr int firstYear = 1900;  // of std::tm

template <typename Number>
std::optional<Number> readNumber(std::string_view text) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [read, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || read != end) {
        return std::nullopt;
    }
    return number;
}

std::optional<std::tm> calendarDay(std::time_t time) {
    std::tm day{};
    if (gmtime_r(&time, &day) == nullptr || day.tm_year + firstYear < 1 ||
        day.tm_year + firstYear > 9999) {
        return std::nullopt;
    }
    return day;
}

}  // namespace

std::optional<std::time_t> readDate(std::string_view text) {
    if (text.size() != 10 || text.find_first_not_of("0123456789-") != std::string_view::npos ||
        text[4] != '-' || text[7] != '-') {
        return std::nullopt;
    }
    const auto year = readNumber<int>(text.substr(0, 4));
    const auto month = readNumber<int>(text.substr(5, 2));
    const auto day = readNumber<int>(text.substr(8));
    if (!year || !month || !day) {
        return std::nullopt;
    }
    std::tm date{};
    date.tm_year = *year - firstYear;
    date.tm_mon = *month - 1;
    date.tm_mday = *day;
    const std::time_t time = timegm(&date);
    // A day that its month has not is another day by now.
    const bool isThere = date.tm_mon == *month - 1 && date.tm_mday == *day && calendarDay(time);
    return isThere ? std::optional(time) : std::nullopt;
}

std::optional<std::time_t> readSeconds(std::string_view text) {
    return readNumber<std::time_t>(text);
}

std::string writtenDate(std::time_t time) {
    constexpr const char* months[] = {"January",
                                      "February",
                                      "March",
                                      "April",
                                      "May",
                                      "June",
                                      "July",
                                      "August",
                                      "September",
                                      "October",
                                      "November",
                                      "December"};
    const std::optional<std::tm> day = calendarDay(time);
    if (!day) {
        throw std::runtime_error("the second " + std::to_string(time) +
                                 " since 1970 lies outside the years 1 to 9999");
    }
    return std::string(months[day->tm_mon]) + " " + std::to_string(day->tm_mday) + ", " +
           std::to_string(day->tm_year + firstYear);
}

}  // namespace vocabulary
