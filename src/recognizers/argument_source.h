// Where arguments come from, one after the other.

#ifndef ZARN_RECOGNIZERS_ARGUMENT_SOURCE_H
#define ZARN_RECOGNIZERS_ARGUMENT_SOURCE_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace zarn_3_3::internal {

// The arguments that are not yet in the argument vector.
//
// Recognisers remove arguments from the front of a vector. It holds one argument, or two while a
// recogniser looks at the next one, and is filled up from here: removing from the front of a long
// vector would move all the rest each time.
//
// A parse reads what it was called with as it was then, though client code that runs meanwhile may
// change or free it. Until such code runs the texts are read where they stand, which spares the
// parses that nobody hears a copy.
class ArgumentSource {
public:
    // To be called before client code runs: from then on the rest is read from a copy. Throws
    // std::bad_alloc.
    void secure() {
        if (!isSecure) {
            copyRest();
            isSecure = true;
        }
    }

    // Makes `args` hold at least `count` arguments, if there are so many.
    void fillUp(std::vector<std::string>& args, std::size_t count = 1) {
        while (args.size() < count) {
            std::string argument;
            if (!next(argument)) {
                return;
            }
            args.push_back(std::move(argument));
        }
    }

    // Removes the argument in front; the next one takes its place, and its memory.
    void removeFront(std::vector<std::string>& args) {
        if (args.size() > 1) {
            args.erase(args.begin());
        } else if (!next(args.front())) {
            args.clear();
        }
    }

protected:
    ~ArgumentSource() = default;

private:
    // Puts the next argument into `argument`; false when there is none left.
    virtual bool next(std::string& argument) = 0;

    virtual void copyRest() = 0;

    bool isSecure = false;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RECOGNIZERS_ARGUMENT_SOURCE_H
