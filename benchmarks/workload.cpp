#include "workload.h"

#include <algorithm>
#include <utility>

namespace zarn_benchmarks {

namespace {

std::string digits(std::size_t number, std::size_t width) {
    std::string text = std::to_string(number);
    text.insert(0, width - std::min(width, text.size()), '0');
    return text;
}

// Names as tools have them: unlike at their start, and still unique without their last byte.
std::string optionName(std::size_t index) {
    static const char* const stems[] = {
        "all",  "base",  "cache", "depth", "entry",  "file", "group", "host", "input", "jobs",
        "keep", "limit", "mode",  "name",  "output", "path", "query", "rate", "size",  "target"};
    return stems[index % std::size(stems)] + digits(index, 4) + "x";
}

std::string describe(std::size_t index, std::size_t size) {
    std::string text = "about" + std::to_string(index);
    while (text.size() < size) {
        text += " words of help";
    }
    text.resize(size);
    text.back() = '.';
    return text;
}

std::string valueOf(Kind kind, std::size_t index) {
    switch (kind) {
        case Kind::integer:
            return std::to_string(index * 7 % 2000003);
        case Kind::real:
            return std::to_string(index) + ".25";
        case Kind::choice:
            return choices[index % std::size(choices)];
        default:
            return "v" + digits(index, 7);  // switches do not use it
    }
}

void addValue(Kind kind, ArgumentForm form, std::size_t index, Checksum* sum) {
    if (isSwitch(kind)) {
        sum->add(form != ArgumentForm::negated);
    } else if (kind == Kind::integer) {
        sum->add(std::stoi(valueOf(kind, index)));
    } else if (kind == Kind::real) {
        sum->add(std::stod(valueOf(kind, index)));
    } else {
        sum->add(valueOf(kind, index));
    }
}

std::string argumentFor(const DeclaredOption& item, ArgumentForm form, const std::string& value) {
    if (form == ArgumentForm::plain) {
        return value;
    }
    if (form == ArgumentForm::negated) {
        return "--no-" + item.name;
    }
    const std::size_t size = item.name.size() - (form == ArgumentForm::cut ? 1 : 0);
    return "--" + item.name.substr(0, size) + (isSwitch(item.kind) ? "" : "=" + value);
}

void declare(std::size_t options, Kind kind, std::size_t descriptionSize, Workload* workload) {
    std::vector<DeclaredOption>& items = workload->vocabulary.options;
    const std::size_t end = items.size() + options;
    for (std::size_t i = items.size(); i < end; ++i) {
        items.push_back({optionName(i), describe(i, descriptionSize), kind, false});
    }
}

Workload singleKind(std::size_t options, Kind kind, std::size_t steps) {
    Workload workload;
    declare(options, kind, 24, &workload);
    workload.vocabulary.multiValued = true;
    workload.steps = steps;
    return workload;
}

// `count` values for every `stride`-th option, around and around. They have no divisor in common,
// so what is given to one option lies `options` arguments apart.
Workload manyValues(
    std::size_t options, Kind kind, std::size_t count, std::size_t stride, ArgumentForm form) {
    Workload workload = singleKind(options, kind, count);
    std::vector<DeclaredOption>& items = workload.vocabulary.options;
    items[0].positional = form == ArgumentForm::plain;
    for (std::size_t i = 0; i < count; ++i) {
        workload.line.add(argumentFor(items[i * stride % options], form, valueOf(kind, i)));
    }
    workload.line.finish();
    Checksum sum;
    for (std::size_t first = 0; first < std::min(options, count); ++first) {
        workload.asked.push_back(first * stride % options);
        for (std::size_t i = first; i < count; i += options) {
            addValue(kind, form, i, &sum);
        }
    }
    workload.expected = sum.value();
    return workload;
}

Workload singleValue(const std::string& value, const Checksum& expected, std::size_t steps) {
    Workload workload = singleKind(1, Kind::text, steps);
    const DeclaredOption& item = workload.vocabulary.options[0];
    workload.line.add(argumentFor(item, ArgumentForm::exact, value));
    workload.line.finish();
    workload.asked = {0};
    workload.expected = expected.value();
    return workload;
}

}  // namespace

void CommandLine::finish() {
    for (std::size_t i = 0; i < bytes_.size(); i = bytes_.find('\0', i) + 1) {
        pointers_.push_back(&bytes_[i]);
    }
    pointers_.push_back(nullptr);
}

std::string CommandLine::lines() const {
    std::string text = bytes_.substr(program.size());
    std::replace(text.begin(), text.end(), '\0', '\n');
    return text;
}

Workload startUp() {
    const std::pair<Kind, std::size_t> parts[] = {
        {Kind::text,    20},
        {Kind::integer, 10},
        {Kind::flag,    10},
        {Kind::real,    5 },
        {Kind::choice,  5 },
    };
    Workload workload;
    workload.steps = 16;
    Checksum sum;
    for (const auto& [kind, options] : parts) {
        const std::size_t first = workload.vocabulary.options.size();
        declare(options, kind, 24, &workload);
        for (std::size_t i = first; i < first + options * 2 / 5; ++i) {
            const DeclaredOption& item = workload.vocabulary.options[i];
            workload.line.add(argumentFor(item, ArgumentForm::exact, valueOf(kind, i)));
            workload.asked.push_back(i);
            addValue(kind, ArgumentForm::exact, i, &sum);
        }
    }
    workload.line.finish();
    workload.expected = sum.value();
    return workload;
}

Workload manyArguments(std::size_t count, Kind kind) {
    return manyValues(50, kind, count, 7, ArgumentForm::exact);
}

Workload names(std::size_t options, Kind kind, ArgumentForm form) {
    return manyValues(options, kind, 1000, 7919, form);
}

Workload positionals(std::size_t count) {
    return manyValues(1, Kind::text, count, 1, ArgumentForm::plain);
}

Workload declarations(std::size_t options, std::size_t descriptionSize) {
    Workload workload;
    declare(options, Kind::text, descriptionSize, &workload);
    workload.steps = options;
    return workload;
}

Workload pieces(std::size_t count) {
    std::string value;
    Checksum sum;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string piece = valueOf(Kind::text, i);
        value += (i == 0 ? "" : ",") + piece;
        sum.add(piece);
    }
    return singleValue(value, sum, count);
}

Workload longValue(std::size_t size) {
    const std::string value(size, 'x');
    Checksum sum;
    sum.add(value);
    return singleValue(value, sum, size);
}

}  // namespace zarn_benchmarks
