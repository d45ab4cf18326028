#include "support/stored.h"

#include <climits>

namespace zarn_3_3::checking {
namespace {

std::string describe(const Value& value, int base) {
    return std::string(value.text) + "@" + std::to_string(value.position - base) + ":" +
           std::to_string(value.value.type());
}

std::vector<int> occurrencesOf(IParseResult& result) {
    std::vector<int> numbers;
    for (int number = result.nextPosition(); number != INT_MAX; number = result.nextPosition()) {
        numbers.push_back(number);
    }
    return numbers;
}

// The occurrence `from`; the next one, if any, has the number `to`.
std::string describeOccurrence(IParseResult& result, const char* name, int from, int to, int base) {
    std::string text = "(" + std::to_string(from - base);
    for (Value value = result.get(name, from, to); value.text != nullptr;
         value = result.next(name)) {
        text += " " + describe(value, base);
    }
    return text + ")";
}

bool isPrefix(const std::string& part, const std::string& whole) {
    return whole.compare(0, part.size(), part) == 0;
}

// Of what `texts` has under the name, or nothing.
std::string under(const std::string& name, const std::map<std::string, std::string>& texts) {
    const auto found = texts.find(name);
    return found == texts.end() ? "" : found->second;
}

}  // namespace

Stored readStored(IParseResult& result, const std::vector<std::string>& names, int base) {
    Stored stored;
    for (const std::string& name : names) {
        if (!result.present(name.c_str(), 0, INT_MAX)) {
            continue;
        }
        const std::vector<int> numbers = occurrencesOf(result);
        if (numbers.empty()) {
            stored.defaults[name] = describe(result.get(name.c_str(), 0, INT_MAX), base);
        }
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const int end = i + 1 < numbers.size() ? numbers[i + 1] : INT_MAX;
            stored.given[name] += describeOccurrence(result, name.c_str(), numbers[i], end, base);
        }
    }
    const char* text = nullptr;
    for (int status = result.getFirstArgument(&text); status == statusFound;
         status = result.getNextArgument(&text)) {
        stored.plain.append(text).append("|");
    }
    return stored;
}

std::string describe(const Stored& stored) {
    std::string text;
    for (const auto& [name, given] : stored.given) {
        text += name + given + " ";
    }
    for (const auto& [name, value] : stored.defaults) {
        text += name + " by default " + value + " ";
    }
    return text + "-- " + stored.plain;
}

bool isBeginning(const Stored& part, const Stored& whole, const Stored& defaults) {
    for (const auto& [name, given] : part.given) {
        if (!isPrefix(given, under(name, whole.given))) {
            return false;
        }
    }
    for (const auto& [name, value] : part.defaults) {
        if (value != under(name, defaults.defaults)) {
            return false;
        }
    }
    return isPrefix(part.plain, whole.plain);
}

}  // namespace zarn_3_3::checking
