#include "workload.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

#include "checksum.h"

namespace zarn_benchmarks {

namespace {

// Names as tools have them: unlike at their start, and still unique without their last byte.
std::string optionName(std::size_t index) {
    static const char* const stems[] = {
        "all",  "base",  "cache", "depth", "entry",  "file", "group", "host", "input", "jobs",
        "keep", "limit", "mode",  "name",  "output", "path", "query", "rate", "size",  "target"};
    std::string number = std::to_string(index);
    number.insert(0, 4 - std::min<std::size_t>(4, number.size()), '0');
    return stems[index % std::size(stems)] + number + "x";
}

std::string describe(std::size_t index, std::size_t size) {
    std::string text = "about" + std::to_string(index);
    while (text.size() < size) {
        text += " words of help";
    }
    text.resize(size);
    if (text.back() == ' ') {
        text.back() = '.';
    }
    return text;
}

DeclaredOption option(std::size_t index, Kind kind, std::size_t descriptionSize = 24) {
    return {optionName(index), describe(index, descriptionSize), kind, false};
}

std::string valueOf(Kind kind, std::size_t index) {
    switch (kind) {
        case Kind::integer:
            return std::to_string(index * 7 % 2000003);
        case Kind::real:
            return std::to_string(index) + ".25";
        case Kind::choice:
            return choices[index % std::size(choices)];
        case Kind::text: {
            std::string digits = std::to_string(index);
            return "v" + std::string(7 - std::min<std::size_t>(7, digits.size()), '0') + digits;
        }
        case Kind::flag:
        case Kind::toggle:
            break;
    }
    return "";
}

void addValue(Kind kind, const std::string& value, Checksum* sum) {
    switch (kind) {
        case Kind::integer:
            sum->addInteger(std::atoi(value.c_str()));
            break;
        case Kind::real:
            sum->addReal(std::strtod(value.c_str(), nullptr));
            break;
        case Kind::text:
        case Kind::choice:
            sum->addText(value);
            break;
        case Kind::flag:
            sum->addNumber(1);
            break;
        case Kind::toggle:
            sum->addNumber(value == "1" ? 1 : 0);
            break;
    }
}

void setExpected(const std::vector<Given>& given, Workload* workload) {
    std::vector<std::vector<const Given*>> byOption(workload->vocabulary.options.size());
    for (const Given& one : given) {
        byOption[one.option].push_back(&one);
    }
    Checksum sum;
    for (std::size_t asked : workload->asked) {
        for (const Given* one : byOption[asked]) {
            addValue(workload->vocabulary.options[asked].kind, one->value, &sum);
        }
    }
    workload->expected = sum.value();
}

// Writes the arguments, and what must be read back of them.
void finish(std::vector<Given> given, NameForm form, Workload* workload) {
    for (Given& one : given) {
        const DeclaredOption& item = workload->vocabulary.options[one.option];
        std::string argument = form == NameForm::negated ? "--no-" : "--";
        argument += form == NameForm::cut ? item.name.substr(0, item.name.size() - 1) : item.name;
        if (item.positional) {
            argument = one.value;
        } else if (item.kind == Kind::toggle) {
            one.value = form == NameForm::negated ? "0" : "1";
        } else if (item.kind != Kind::flag) {
            argument += "=" + one.value;
        }
        workload->line.add(argument);
    }
    workload->line.finish();
    setExpected(given, workload);
}

void askAll(Workload* workload) {
    workload->asked.resize(workload->vocabulary.options.size());
    std::iota(workload->asked.begin(), workload->asked.end(), std::size_t{0});
}

Workload single(std::string value, std::size_t steps) {
    Workload workload;
    workload.vocabulary.multiValued = true;
    workload.vocabulary.options.push_back(option(0, Kind::text));
    workload.steps = steps;
    askAll(&workload);
    finish(
        {
            {0, std::move(value)}
    },
        NameForm::exact,
        &workload);
    return workload;
}

}  // namespace

void CommandLine::add(std::string_view argument) {
    if (starts.empty()) {
        starts.push_back(0);
        bytes.append("bench").push_back('\0');
    }
    starts.push_back(bytes.size());
    bytes.append(argument).push_back('\0');
}

void CommandLine::finish() {
    pointers.reserve(starts.size() + 1);
    for (std::size_t start : starts) {
        pointers.push_back(bytes.data() + start);
    }
    pointers.push_back(nullptr);
}

std::string CommandLine::lines() const {
    std::string text = bytes.substr(starts[1]);
    std::replace(text.begin(), text.end(), '\0', '\n');
    return text;
}

Workload startUp() {
    struct Part {
        Kind kind;
        std::size_t declared;
        std::size_t given;
    };
    const Part parts[] = {
        {Kind::text,    20, 8},
        {Kind::integer, 10, 4},
        {Kind::flag,    10, 4},
        {Kind::real,    5,  2},
        {Kind::choice,  5,  2},
    };
    Workload workload;
    workload.steps = 16;
    std::vector<Given> given;
    for (const Part& part : parts) {
        for (std::size_t i = 0; i < part.declared; ++i) {
            const std::size_t index = workload.vocabulary.options.size();
            workload.vocabulary.options.push_back(option(index, part.kind));
            if (i < part.given) {
                workload.asked.push_back(index);
                given.push_back({static_cast<std::uint32_t>(index), valueOf(part.kind, index)});
            }
        }
    }
    finish(std::move(given), NameForm::exact, &workload);
    return workload;
}

Workload manyArguments(std::size_t count, Kind kind) {
    Workload workload;
    workload.vocabulary.multiValued = true;
    workload.steps = count;
    for (std::size_t i = 0; i < 50; ++i) {
        workload.vocabulary.options.push_back(option(i, kind));
    }
    askAll(&workload);
    std::vector<Given> given;
    given.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        given.push_back({static_cast<std::uint32_t>(i * 7 % 50), valueOf(kind, i)});
    }
    finish(std::move(given), NameForm::exact, &workload);
    return workload;
}

Workload names(std::size_t options, Kind kind, NameForm form) {
    Workload workload;
    workload.vocabulary.multiValued = true;
    workload.steps = namesGiven;
    for (std::size_t i = 0; i < options; ++i) {
        workload.vocabulary.options.push_back(option(i, kind));
    }
    std::vector<Given> given;
    for (std::size_t i = 0; i < namesGiven; ++i) {
        given.push_back({static_cast<std::uint32_t>(i * 7919 % options), valueOf(kind, i)});
    }
    for (std::size_t i = 0; i < std::min(options, namesGiven); ++i) {
        workload.asked.push_back(given[i].option);
    }
    finish(std::move(given), form, &workload);
    return workload;
}

Workload positionals(std::size_t count) {
    Workload workload;
    workload.vocabulary.multiValued = true;
    workload.vocabulary.options.push_back(option(0, Kind::text));
    workload.vocabulary.options[0].positional = true;
    workload.steps = count;
    askAll(&workload);
    std::vector<Given> given;
    given.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        given.push_back({0, valueOf(Kind::text, i)});
    }
    finish(std::move(given), NameForm::exact, &workload);
    return workload;
}

Workload declarations(std::size_t options, std::size_t descriptionSize) {
    Workload workload;
    workload.steps = options;
    for (std::size_t i = 0; i < options; ++i) {
        workload.vocabulary.options.push_back(option(i, Kind::text, descriptionSize));
    }
    workload.line.add("");
    workload.line.finish();
    return workload;
}

Workload pieces(std::size_t count) {
    std::string value;
    Checksum sum;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string piece = valueOf(Kind::text, i);
        value += (i == 0 ? "" : ",") + piece;
        sum.addText(piece);
    }
    Workload workload = single(std::move(value), count);
    workload.expected = sum.value();
    return workload;
}

Workload longValue(std::size_t size) { return single(std::string(size, 'x'), size); }

}  // namespace zarn_benchmarks
