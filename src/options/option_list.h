// The items of a vocabulary.

#ifndef ZARN_OPTIONS_OPTION_LIST_H
#define ZARN_OPTIONS_OPTION_LIST_H

#include <cstddef>
#include <memory>
#include <vector>

#include "options/option_description.h"
#include "text/make_room.h"

namespace zarn_3_3 {

// In the order of declaration. A vocabulary that grows moves and copies none of them: they stand in
// blocks of a few. Every argument asks for some by their indices, so all blocks hold the same
// number.
class OptionList {
public:
    bool empty() const { return count_ == 0; }
    std::size_t size() const { return count_; }

    const OptionDescription& operator[](std::size_t index) const {
        return blocks_[index / ofBlock][index % ofBlock];
    }
    OptionDescription& operator[](std::size_t index) {
        return blocks_[index / ofBlock][index % ofBlock];
    }
    const OptionDescription& front() const { return (*this)[0]; }
    const OptionDescription& back() const { return *last_; }

    // Throws std::bad_alloc and changes nothing then.
    OptionDescription& add() {
        if (count_ == blocks_.size() * ofBlock) {
            internal::makeRoom(blocks_, blocks_.size() + 1, 16);
            blocks_.push_back(std::make_unique<OptionDescription[]>(ofBlock));
        }
        last_ = &blocks_[count_ / ofBlock][count_ % ofBlock];
        ++count_;
        return *last_;
    }

    void removeLast() {
        *last_ = OptionDescription();
        --count_;
        last_ = count_ == 0 ? nullptr : &blocks_[(count_ - 1) / ofBlock][(count_ - 1) % ofBlock];
    }

private:
    // Below one kilobyte in all: larger ones make the allocator tidy up at each start of a tool.
    static constexpr std::size_t ofBlock = 4;

    std::vector<std::unique_ptr<OptionDescription[]>> blocks_;
    std::size_t count_ = 0;
    OptionDescription* last_ = nullptr;  // every argument asks whether it has changed
};

}  // namespace zarn_3_3

#endif  // ZARN_OPTIONS_OPTION_LIST_H
