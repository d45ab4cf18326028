// Vocabularies out of few letters, so that names and values begin alike, and command lines for
// them.

#ifndef ZARN_TESTS_PROGRAMS_RANDOM_VOCABULARY_H
#define ZARN_TESTS_PROGRAMS_RANDOM_VOCABULARY_H

#include <random>
#include <string>
#include <vector>

#include "description.h"

namespace vocabulary {

class RandomVocabulary {
public:
    explicit RandomVocabulary(unsigned seed) : random_(seed) {}

    Description description();

    // One that has much in common with the other.
    Description nextVersionOf(const Description& before);

    // Words that one of the two may take, without the name of the tool.
    std::vector<std::string> line(const Description& before, const Description& after);

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
    bool once(int in) { return upTo(in - 1) == 0; }
    template <typename List>
    auto some(const List& list) {
        return list[static_cast<std::size_t>(upTo(static_cast<int>(std::size(list)) - 1))];
    }

    std::string name();
    std::string value(Type type);
    std::string word(const Description& description);
    void addName(Item& item);
    void chooseKind(Item& item, const Description& description);
    void chooseType(Item& item);
    void chooseValues(Item& item);
    void chooseDefault(Item& item);
    void chooseSeparator(Item& item);
    void addItem(Description& description);
    void changeItem(Item& item, const Description& description);
    void changeTool(Description& description);
    void chooseFlags(Description& description);
    void chooseGroups(Description& description);

    std::mt19937 random_;
};

}  // namespace vocabulary

#endif  // ZARN_TESTS_PROGRAMS_RANDOM_VOCABULARY_H
