// Vocabularies and arguments as the bytes of an input describe them.

#ifndef ZARN_FUZZ_VOCABULARY_H
#define ZARN_FUZZ_VOCABULARY_H

#include <string>
#include <vector>

#include "bytes.h"
#include "zarn/option.h"

namespace fuzzing {

// Names between commas: most of them out of a few that clash, tie and abbreviate one another.
std::string nameListFrom(Bytes& bytes);

zarn_3_3::das_variant_type_t typeFrom(Bytes& bytes);

// A value for an item of that type, which may be of another kind. What depends on the address of
// a text is left out: it could not be compared.
zarn_3_3::variant_t valueFrom(Bytes& bytes, zarn_3_3::das_variant_type_t type);

std::string sectionFrom(Bytes& bytes);
std::string tagsFrom(Bytes& bytes);
std::string descriptionFrom(Bytes& bytes);

// Makes some settings on an item; names that are added to it are appended to `names`.
void makeSettings(Bytes& bytes,
                  zarn_3_3::IOption& item,
                  zarn_3_3::das_variant_type_t type,
                  std::vector<std::string>& names);

// What is typed: mostly a dash, a name, and what the bytes say.
std::vector<std::string> argumentsFrom(Bytes& bytes);

void appendNames(const std::string& nameList, std::vector<std::string>& names);

// Declares items through a parser, or through a registry. Returns the names of all that were
// tried, an item without names as an empty one.
template <typename Declarer>
std::vector<std::string> declareVocabulary(Bytes& bytes, Declarer& declarer) {
    std::vector<std::string> names;
    for (unsigned left = bytes.below(12); left > 0; --left) {
        const std::string list = nameListFrom(bytes);
        const auto type = typeFrom(bytes);
        const std::string description = descriptionFrom(bytes);
        const std::string section = sectionFrom(bytes);
        const bool isAction = bytes.below(4) == 3;
        const std::string tags = isAction ? "" : tagsFrom(bytes);
        appendNames(list, names);
        zarn_3_3::IOption& item =
            isAction ? declarer.action(list.c_str(), description.c_str(), type, section.c_str())
                     : declarer.modifier(
                           list.c_str(), tags.c_str(), description.c_str(), type, section.c_str());
        makeSettings(bytes, item, type, names);
    }
    return names;
}

}  // namespace fuzzing

#endif  // ZARN_FUZZ_VOCABULARY_H
