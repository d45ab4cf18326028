// Descriptions with texts that the languages of pages could take for their own.

#ifndef ZARN_TESTS_PROGRAMS_NASTY_DESCRIPTIONS_H
#define ZARN_TESTS_PROGRAMS_NASTY_DESCRIPTIONS_H

#include <random>
#include <string>

#include "description.h"

namespace vocabulary {

class NastyDescriptions {
public:
    explicit NastyDescriptions(unsigned seed) : random_(seed) {}

    Description next();

private:
    std::string text(std::size_t mostPieces);
    std::string name();
    Item item();
    std::size_t upTo(std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(random_);
    }
    template <typename Choices>
    const auto& oneOf(const Choices& choices) {
        return choices[upTo(std::size(choices) - 1)];
    }

    std::mt19937 random_;
};

}  // namespace vocabulary

#endif  // ZARN_TESTS_PROGRAMS_NASTY_DESCRIPTIONS_H
