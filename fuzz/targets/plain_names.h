// What a typed name stands for, by a plain search through all names.

#ifndef ZARN_FUZZ_PLAIN_NAMES_H
#define ZARN_FUZZ_PLAIN_NAMES_H

#include <string>
#include <vector>

namespace fuzzing {

struct PlainItem {
    std::vector<std::string> names;
    bool isBoolean;
    bool isAction;
    std::string sectionKey;
};

// A name, or the "no-" form of a boolean's.
struct Form {
    std::string text;
    const PlainItem* item;
};

// In the order of declaration.
std::vector<Form> formsOf(const std::vector<PlainItem>& items);

// The one with this text, or all that begin so, each text once.
std::vector<Form> meantBy(const std::vector<Form>& forms, const std::string& text);

// "<primary name>", and the value of a boolean.
std::string takenFor(const Form& form);

// The error text for a name that stands for none, or for several.
std::string refusal(const std::vector<Form>& meant, const std::string& text);

// Whether an argument of two dashes and this text has all of it as its name.
bool canBeName(const std::string& text);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_PLAIN_NAMES_H
