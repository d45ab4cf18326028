// The arguments of a parse, from the one in front on.

#ifndef ZARN_RECOGNIZERS_ARGUMENTS_H
#define ZARN_RECOGNIZERS_ARGUMENTS_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zarn_3_3::internal {

// Where an argument stands: in argv, or on a line of a text. 0: there is none.
struct Place {
    int index = 0;
    std::size_t line = 0;
    std::string_view file;  // of the text; lives as long as the arguments
};

// Gives arguments out one after the other; where they come from says the class derived from it.
//
// Recognisers remove arguments from the front of a vector. Only those that are looked at stand in
// one: removing from the front of a long vector would move all the rest each time.
//
// A parse reads what it was called with as it was then, though client code that runs meanwhile may
// change or free it. Until such code runs the texts are read where they stand, which spares the
// parses that nobody hears a copy.
class Arguments {
public:
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    // To be called before client code runs: from then on the rest is read from a copy. Throws
    // std::bad_alloc.
    void secure() {
        if (!isSecure_) {
            copyRest();
            isSecure_ = true;
        }
    }

    bool isEmpty() { return window_.empty() && !lookAhead(); }

    // Stays where it is until it is taken, also while the next one is looked at: views into it stay
    // valid.
    std::string& front() { return window_.front(); }

    // The argument behind the one in front, or null.
    const std::string* second() {
        return window_.size() > 1 || lookAhead() ? &window_[1] : nullptr;
    }

    // Removes the argument in front; the next one takes its place, and its memory.
    void take() {
        if (window_.size() > 1) {
            window_.erase(window_.begin());
        } else if (!next(window_.front())) {
            window_.clear();
        }
    }

    // Takes the argument in front, and those behind it as long as wanted(text) does: without the
    // copy that standing in front costs.
    template <typename Wanted>
    void takeWhile(Wanted wanted) {
        std::string_view text;
        while (window_.size() == 1 && peek(text) && wanted(text)) {
            skip();
        }
        take();
    }

    // The one or two arguments that are looked at, as recognisers are called with them.
    std::vector<std::string>& window() { return window_; }

    // Where the argument in front stands, or the one that is looked at behind it. Worked out when
    // it is asked for, which is when one has failed.
    Place placeOfFront() const { return placeOf(window_.size()); }
    Place placeOfSecond() const { return placeOf(1); }

protected:
    Arguments() { window_.reserve(2); }
    ~Arguments() = default;

private:
    // The argument behind those that were given out; false when there is none left.
    virtual bool peek(std::string_view& argument) = 0;
    virtual void skip() = 0;

    virtual void copyRest() = 0;

    // `age` is 1 for the argument that was given out last, 2 for the one before.
    virtual Place placeOf(std::size_t age) const = 0;

    // Into the memory of the argument before, mostly: no allocation for each.
    bool next(std::string& argument) {
        std::string_view text;
        if (!peek(text)) {
            return false;
        }
        argument = text;
        skip();
        return true;
    }

    bool lookAhead() {
        std::string argument;
        if (!next(argument)) {
            return false;
        }
        window_.push_back(std::move(argument));
        return true;
    }

    std::vector<std::string> window_;  // has room for two from the start, so that it never moves
    bool isSecure_ = false;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RECOGNIZERS_ARGUMENTS_H
