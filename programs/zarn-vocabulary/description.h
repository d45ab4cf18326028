// What a tool takes, as its description says.

#ifndef ZARN_VOCABULARY_DESCRIPTION_H
#define ZARN_VOCABULARY_DESCRIPTION_H

#include <string>
#include <vector>

namespace vocabulary {

enum class Kind { action, modifier, option };

enum class Type { toggle, boolean, int32, uint32, int64, uint64, real, text };

struct DeprecatedValue {
    std::string value;
    std::string replacement;
};

// An empty text is one that is absent.
struct Item {
    std::vector<std::string> names;
    Kind kind = Kind::option;
    Type type = Type::toggle;
    std::string help;
    std::string section;
    bool isHidden = false;
    std::vector<std::string> tags;
    std::string defaultValue;
    std::vector<std::string> values;
    std::vector<DeprecatedValue> deprecated;
    std::string separator;
    std::string valueName;
    bool isPositional = false;
    bool isOptionFile = false;
};

struct Section {
    std::string key;
    std::string title;
};

struct Description {
    std::string name;
    std::string version;
    std::string summary;
    int flags = 0;
    std::vector<Section> sections;
    std::vector<std::vector<std::string>> groups;
    std::vector<Item> items;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_DESCRIPTION_H
