// One item of the modern face.

#ifndef ZARN_MODERN_ITEM_RECORD_H
#define ZARN_MODERN_ITEM_RECORD_H

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "zarn/typed/engine.h"

namespace zarn_3_3 {

class IOption;

namespace internal {

// What is kept of its description when an item has been declared.
struct ItemRecord {
    explicit ItemRecord(ItemDescription& given);

    // Whether its values have to be parsed anew when they were stored for a group of positional
    // items, as texts.
    bool needsOwnParse() const;
    bool takesValue() const { return type != vtNull && type != vtBool; }
    bool takesMany() const { return target == nullptr || target->takesMany(); }
    const std::string& primaryName() const { return names.front(); }

    // How messages call it: as users type it.
    std::string called() const;

    // Chains its settings. Throws std::bad_alloc when the plain item has not taken all of them.
    void configure(IOption& item) const;

    // A deprecated value as what it is read as.
    Value replaced(const Value& value) const;

    Role role;
    das_variant_type_t type;
    std::string allNames;  // as they were given
    std::vector<std::string> names;
    std::vector<std::string> actions;
    std::string description;
    std::string shownName;
    std::string environment;
    char* (*readVariable)(const char*);
    std::vector<AllowedValue> allowed;
    variant_t defaultValue;
    variant_t least;
    variant_t greatest;
    std::unique_ptr<Check> checks;
    std::unique_ptr<Target> target;
    char separator;
    bool isRequired;
    bool isAlone;
    bool showsTarget;
    bool isAnswered = false;  // without the tool, as help is
};

// "-j", "--jobs"
std::string typedName(std::string_view name);

// Throw std::logic_error when the author has made a mistake in it, apart from the names of others.
void requireNames(const ItemRecord& item);
void requireDefault(const ItemRecord& item);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_MODERN_ITEM_RECORD_H
