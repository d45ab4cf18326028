#include "description_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <initializer_list>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace vocabulary {
namespace {

using nlohmann::json;

// The format rises when a key changes its meaning; what is older is read as it was meant then.
constexpr int newestFormat = 1;

// A value of the document, and the way to it.
class Node {
public:
    Node(const json& document, const std::string& source) : value_(document), source_(source) {}

    const json& value() const { return value_; }

    // Calls visit(member) unless there is none.
    template <typename Visit>
    void ifHas(const char* key, Visit visit) const {
        requireThat(value_.is_object(), "must be an object");
        const auto found = value_.find(key);
        if (found != value_.end()) {
            visit(Node(*found, *this, key));
        }
    }

    template <typename Visit>
    void forEach(Visit visit) const {
        requireThat(value_.is_array(), "must be a list");
        for (std::size_t i = 0; i < value_.size(); ++i) {
            visit(Node(value_[i], *this, std::to_string(i)));
        }
    }

    void requireThat(bool isRight, const char* expected) const {
        if (!isRight) {
            const std::string place = outer_ == nullptr ? "" : pointer() + ": ";
            throw UnreadableDescription(source_ + ": " + place + expected);
        }
    }

private:
    Node(const json& value, const Node& outer, std::string step)
        : value_(value), source_(outer.source_), outer_(&outer), step_(std::move(step)) {}

    std::string pointer() const { return outer_ == nullptr ? "" : outer_->pointer() + "/" + step_; }

    const json& value_;
    const std::string& source_;
    const Node* outer_ = nullptr;
    std::string step_;
};

void read(const Node& node, std::string& text) {
    node.requireThat(node.value().is_string(), "must be a text");
    text = node.value().get<std::string>();
}

void read(const Node& node, bool& flag) {
    node.requireThat(node.value().is_boolean(), "must be true or false");
    flag = node.value().get<bool>();
}

void read(const Node& node, int& number) {
    constexpr auto most = std::numeric_limits<int>::max();
    const json& value = node.value();
    const bool fits = value.is_number_unsigned() && value.get<std::uint64_t>() <= most;
    node.requireThat(fits, "must be a whole number from 0 to 2147483647");
    number = value.get<int>();
}

// A word of a fixed list, for the enumerator at the same place.
template <typename Enumeration>
void readWord(const Node& node,
              std::initializer_list<const char*> words,
              const char* expected,
              Enumeration& out) {
    std::string word;
    read(node, word);
    const auto* const found = std::find(words.begin(), words.end(), word);
    node.requireThat(found != words.end(), expected);
    out = static_cast<Enumeration>(found - words.begin());
}

void read(const Node& node, Kind& kind) {
    readWord(
        node, {"action", "modifier", "option"}, "must be 'action', 'modifier' or 'option'", kind);
}

void read(const Node& node, Type& type) {
    readWord(node,
             {"switch", "boolean", "int32", "uint32", "int64", "uint64", "double", "text"},
             "is no type that is known",
             type);
}

template <typename T>
void read(const Node& node, std::vector<T>& list);

template <typename T>
void readMember(const Node& object, const char* key, T& out) {
    object.ifHas(key, [&out](const Node& member) { read(member, out); });
}

void read(const Node& node, DeprecatedValue& deprecated) {
    readMember(node, "value", deprecated.value);
    readMember(node, "replacement", deprecated.replacement);
}

void read(const Node& node, Section& section) {
    readMember(node, "key", section.key);
    readMember(node, "title", section.title);
}

void read(const Node& node, Item& item) {
    readMember(node, "names", item.names);
    readMember(node, "kind", item.kind);
    readMember(node, "type", item.type);
    readMember(node, "help", item.help);
    readMember(node, "section", item.section);
    readMember(node, "hidden", item.isHidden);
    readMember(node, "tags", item.tags);
    readMember(node, "default", item.defaultValue);
    readMember(node, "values", item.values);
    readMember(node, "deprecated", item.deprecated);
    readMember(node, "separator", item.separator);
    readMember(node, "valueName", item.valueName);
    readMember(node, "positional", item.isPositional);
    readMember(node, "optionFile", item.isOptionFile);
}

template <typename T>
void read(const Node& node, std::vector<T>& list) {
    node.forEach([&list](const Node& element) { read(element, list.emplace_back()); });
}

void requireFormat(const Node& document) {
    document.requireThat(document.value().is_object() && document.value().contains("format"),
                         "is no description of a tool: there is no key 'format'");
    document.ifHas("format", [](const Node& node) {
        int format = 0;
        read(node, format);
        node.requireThat(format != 0, "there is no format 0");
        node.requireThat(format <= newestFormat,
                         "is a newer format than this program knows, which is 1");
    });
}

Description readDocument(const Node& document) {
    requireFormat(document);
    Description description;
    readMember(document, "name", description.name);
    readMember(document, "version", description.version);
    readMember(document, "summary", description.summary);
    readMember(document, "flags", description.flags);
    readMember(document, "sections", description.sections);
    readMember(document, "groups", description.groups);
    readMember(document, "items", description.items);
    return description;
}

json parseJson(const std::string& text, const std::string& source) {
    try {
        return json::parse(text);
    } catch (const json::parse_error& error) {
        const std::size_t end = std::min(error.byte == 0 ? 0 : error.byte - 1, text.size());
        const auto line =
            std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n') + 1;
        throw UnreadableDescription(source + ": line " + std::to_string(line) + ": is no JSON");
    }
}

}  // namespace

Description readDescription(const std::string& text, const std::string& source) {
    const json document = parseJson(text, source);
    return readDocument(Node(document, source));
}

Description readDescriptionFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text;
    for (char block[4096]; file.read(block, sizeof block) || file.gcount() != 0;) {
        text.append(block, static_cast<std::size_t>(file.gcount()));
    }
    // A folder can be opened, and only fails when it is read.
    if (!file.is_open() || file.bad()) {
        throw UnreadableDescription(path + ": cannot be read");
    }
    return readDescription(text, path);
}

}  // namespace vocabulary
