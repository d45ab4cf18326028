// A tool of the modern face with every kind of variable, and what it makes of a command line.

#ifndef ZARN_TESTS_TYPED_TOOL_UNDER_TEST_H
#define ZARN_TESTS_TYPED_TOOL_UNDER_TEST_H

#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

#include "zarn/typed.h"

enum class Mode { fast, thorough };

template <>
struct zarn::Names<Mode> {
    static constexpr zarn::Name<Mode> table[] = {
        {"fast",     Mode::fast    },
        {"thorough", Mode::thorough}
    };
};

struct Point {
    int x = 0;
    int y = 0;
};

template <>
struct zarn::Conversion<Point> {
    static std::optional<Point> read(const char* text, std::string& reason) {
        reason = "it must be two numbers, as in 3:4";
        std::istringstream in(text);
        Point point;
        char colon = 0;
        if (in >> point.x >> colon >> point.y && colon == ':') {
            return point;
        }
        return std::nullopt;
    }
    static std::string write(const Point& point) {
        return std::to_string(point.x) + ":" + std::to_string(point.y);
    }
};

namespace zarn_3_3 {

// The arguments behind the name of the tool, as main has them.
class Line {
public:
    Line(std::initializer_list<const char*> arguments) : all_{"/bin/tool"} {
        all_.insert(all_.end(), arguments);
    }
    int argc() const { return static_cast<int>(all_.size()); }
    const char* const* argv() const { return all_.data(); }

private:
    std::vector<const char*> all_;
};

struct Settings {
    int jobs = 2;
    short level = 0;
    unsigned long long size = 0;
    bool color = true;
    bool quiet = false;
    int verbosity = 0;
    std::optional<double> ratio;
    std::optional<Point> point;
    Mode mode = Mode::fast;
    Mode former = Mode::fast;
    std::chrono::milliseconds timeout{1000};
    std::filesystem::path target;
    std::vector<long> numbers;
    std::vector<std::string> files{"none"};

    // What differs from a Settings of its own.
    std::string changed() const;
};

// Declares everything above; the files are `kept` whole.
void declareSettings(Parser& parser, Settings& settings);

}  // namespace zarn_3_3

#endif  // ZARN_TESTS_TYPED_TOOL_UNDER_TEST_H
