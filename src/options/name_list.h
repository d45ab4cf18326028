// The names of an item.

#ifndef ZARN_OPTIONS_NAME_LIST_H
#define ZARN_OPTIONS_NAME_LIST_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zarn_3_3::internal {

// A sequence of texts, of which the first stands in place: most items have one name, short enough
// to need no memory of its own, and a vector would take some for each.
class NameList {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = std::string;
        using difference_type = std::ptrdiff_t;
        using pointer = const std::string*;
        using reference = const std::string&;

        Iterator() = default;
        Iterator(const NameList& list, std::size_t at) : list_(&list), at_(at) {}

        reference operator*() const { return (*list_)[at_]; }
        pointer operator->() const { return &(*list_)[at_]; }
        Iterator& operator++() {
            ++at_;
            return *this;
        }
        Iterator operator++(int) { return {*list_, at_++}; }
        bool operator==(const Iterator& other) const { return at_ == other.at_; }
        bool operator!=(const Iterator& other) const { return at_ != other.at_; }

    private:
        const NameList* list_ = nullptr;
        std::size_t at_ = 0;
    };

    bool empty() const { return !hasFirst_; }
    std::size_t size() const { return hasFirst_ ? 1 + others_.size() : 0; }
    const std::string& operator[](std::size_t at) const {
        return at == 0 ? first_ : others_[at - 1];
    }
    const std::string& front() const { return first_; }
    const std::string& back() const { return others_.empty() ? first_ : others_.back(); }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }

    // At the end. Throws std::bad_alloc and changes nothing then.
    void add(std::string_view name) {
        if (hasFirst_) {
            others_.emplace_back(name);
        } else {
            first_ = name;
            hasFirst_ = true;
        }
    }

private:
    std::string first_;
    std::vector<std::string> others_;
    bool hasFirst_ = false;
};

// Names as a declaration gives them, none of them copied. More than can be declared are counted,
// and dropped.
class GivenNames {
public:
    using value_type = std::string_view;

    // A primary name, a synonym, and a short form of one or two letters.
    static constexpr std::size_t most = 3;
    static constexpr std::size_t longestThird = 2;

    std::size_t size() const { return count_; }
    std::string_view operator[](std::size_t at) const { return views_[at]; }
    const std::string_view* begin() const { return views_.data(); }
    const std::string_view* end() const { return begin() + std::min(count_, views_.size()); }

    // At the end, which is the only place.
    void insert(const std::string_view* /*end*/, std::string_view name) {
        if (count_ < views_.size()) {
            views_[count_] = name;
        }
        ++count_;
    }

private:
    std::array<std::string_view, most> views_;
    std::size_t count_ = 0;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_NAME_LIST_H
