#include "observation.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

#include "check.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;

constexpr int last = std::numeric_limits<int>::max();

std::string show(const variant_t& value) {
    std::string text = "kind " + std::to_string(value.type());
    if (value.type() == vtDouble) {
        const double number = value.get<double>();
        std::uint64_t bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        text += " bits " + std::to_string(bits);
    } else if (value.type() <= vtU64) {
        text += " number " + std::to_string(value.get<long long>());
    }
    return text + " '" + plinth2::get_variant_value(value, "") + "'";
}

struct Stored {
    std::vector<int> occurrences;
    std::vector<Value> values;
};

std::vector<Value> walk(IParseResult& result, const std::string& name, int from) {
    std::vector<Value> values;
    Value value = result.get(name.c_str(), from, last);
    for (; value.status == statusFound; value = result.next(nullptr)) {
        require(value.as<const char*>() == value.text, "as() gives the text");
        values.push_back(value);
    }
    require(value.status == statusNotFound && value.position == last, "a walk ends");
    return values;
}

std::string list(const std::vector<Value>& values) {
    std::string text;
    for (const Value& value : values) {
        text += fuzzing::show(value) + "\n";
    }
    return text;
}

Stored readStored(IParseResult& result, const std::string& name) {
    Stored stored;
    const bool isThere = result.present(name.c_str(), 0, last);
    for (int number = result.nextPosition(); number != last; number = result.nextPosition()) {
        stored.occurrences.push_back(number);
    }
    stored.values = walk(result, name, 0);
    require(isThere == !stored.values.empty(), "what is present has a value or a number");
    const Value latest = stored.values.empty() ? Value() : stored.values.back();
    requireEqual(fuzzing::show(getLastValue(&result, name.c_str(), 0, last)),
                 fuzzing::show(latest),
                 "the last value");
    return stored;
}

// A walk from the last occurrence on delivers the end of the whole walk.
void checkRange(IParseResult& result, const std::string& name, const Stored& stored) {
    const int from = stored.occurrences.back();
    std::vector<Value> expected;
    for (const Value& value : stored.values) {
        if (value.position >= from) {
            expected.push_back(value);
        }
    }
    requireEqual(list(walk(result, name, from)), list(expected), "a part of the walk");
}

// An item that was given one of its names twice stores everything twice under it.
bool isDoubled(const std::vector<int>& occurrences) {
    return std::adjacent_find(occurrences.begin(), occurrences.end()) != occurrences.end();
}

std::string storedUnder(IParseResult& result,
                        const std::string& name,
                        const std::vector<std::string>& names) {
    const Stored stored = readStored(result, name);
    require(std::is_sorted(stored.occurrences.begin(), stored.occurrences.end()),
            "the numbers of occurrences ascend");
    if (isDoubled(stored.occurrences)) {
        require(std::count(names.begin(), names.end(), name) > 1, "each number is given once");
    } else {
        const auto isNotBelow = [](const Value& a, const Value& b) {
            return a.position >= b.position;
        };
        require(std::adjacent_find(stored.values.begin(), stored.values.end(), isNotBelow) ==
                    stored.values.end(),
                "the numbers of values ascend");
    }
    if (!stored.occurrences.empty()) {
        checkRange(result, name, stored);
    }
    std::string seen = name + ":";
    for (const int number : stored.occurrences) {
        seen += " " + std::to_string(number);
    }
    return seen + "\n" + list(stored.values);
}

}  // namespace

std::string show(const Value& value) {
    return std::to_string(value.status) + " " + (value.text == nullptr ? "(none)" : value.text) +
           " @" + std::to_string(value.position) + " " + show(value.value);
}

std::string stored(IParseResult& result, const std::vector<std::string>& names) {
    std::string seen;
    for (const std::string& name : names) {
        seen += storedUnder(result, name, names);
    }
    const char* argument = nullptr;
    for (int status = result.getFirstArgument(&argument); status == statusFound;
         status = result.getNextArgument(&argument)) {
        seen += std::string("-- ") + argument + "\n";
    }
    return seen;
}

}  // namespace fuzzing
