// Which item of a new tool is that of the old one.

#ifndef ZARN_VOCABULARY_PAIRING_H
#define ZARN_VOCABULARY_PAIRING_H

#include <cstddef>
#include <vector>

#include "description.h"

namespace vocabulary {

// Items are paired by their primary names, then by any name that both have.
class Pairing {
public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    Pairing(const std::vector<Item>& before, const std::vector<Item>& after);

    // The place of the new item for an old one, and the reverse, or none.
    std::size_t after(std::size_t before) const { return after_[before]; }
    std::size_t before(std::size_t after) const { return before_[after]; }

private:
    void pair(std::size_t before, std::size_t after);

    std::vector<std::size_t> after_;
    std::vector<std::size_t> before_;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_PAIRING_H
