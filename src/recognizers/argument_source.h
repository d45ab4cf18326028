// The arguments of a parse, one after the other.

#ifndef ZARN_RECOGNIZERS_ARGUMENT_SOURCE_H
#define ZARN_RECOGNIZERS_ARGUMENT_SOURCE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zarn_3_3::internal {

// How long the texts of arguments live.
enum class Texts {
    passing,  // during the parse
    kept,     // as long as the result, each with a terminator behind it
};

// The arguments that are not yet in the argument vector.
//
// Recognisers remove arguments from the front of a vector. It holds one argument, or two while a
// recogniser looks at the next one, and is filled up from here: removing from the front of a long
// vector would move all the rest each time.
class ArgumentSource {
public:
    ArgumentSource(const std::vector<std::string_view>& arguments, Texts lifetime)
        : ArgumentSource(arguments.data(), arguments.size(), lifetime) {}

    // `arguments` must outlive the source.
    ArgumentSource(const std::string_view* arguments, std::size_t count, Texts lifetime)
        : first(arguments), next(arguments), end(arguments + count), texts(lifetime) {}

    // How many arguments came into the vector.
    std::size_t taken() const { return static_cast<std::size_t>(next - first); }

    // Makes `args` hold at least `count` arguments, if there are so many.
    void fillUp(std::vector<std::string>& args, std::size_t count = 1) {
        while (args.size() < count && next != end) {
            args.emplace_back(*next);
            ++next;
        }
    }

    // Removes the argument in front; the next one takes its place, and its memory.
    void removeFront(std::vector<std::string>& args) {
        if (args.size() > 1) {
            args.erase(args.begin());
        } else if (next != end) {
            args.front() = *next;
            ++next;
        } else {
            args.clear();
        }
    }

    // Where `piece`, which ends where an argument in `args` ends, stands as long as the result,
    // with a terminator behind it. Null for other pieces, and when the texts are not kept.
    const char* placeOf(std::string_view piece, const std::vector<std::string>& args) const {
        if (texts == Texts::passing) {
            return nullptr;
        }
        const std::string_view* original = next - args.size();
        for (const std::string& argument : args) {
            if (piece.data() + piece.size() == argument.data() + argument.size()) {
                return original->data() + (argument.size() - piece.size());
            }
            ++original;
        }
        return nullptr;
    }

private:
    const std::string_view* first;
    const std::string_view* next;
    const std::string_view* end;
    Texts texts;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RECOGNIZERS_ARGUMENT_SOURCE_H
