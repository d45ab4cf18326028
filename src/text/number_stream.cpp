#include "text/number_stream.h"

#include <new>
#include <sstream>

namespace zarn_3_3::internal {
namespace {

// A stream keeps a failed allocation to itself.
void throwIfOutOfMemory(const std::ios& stream) {
    if (stream.bad()) {
        throw std::bad_alloc();
    }
}

// A stream over one text. What does not depend on the type of the number stands apart from what
// does, which would otherwise be there six times.
class NumberStream {
public:
    NumberStream(std::string_view text, bool isHexadecimal);
    ~NumberStream();

    template <typename T>
    bool read(T& number) {
        stream_ >> number;
        return isRead();
    }

    // Whether nothing but white space follows.
    bool isAtEnd();

private:
    bool isRead() const;

    std::istringstream stream_;
};

NumberStream::NumberStream(std::string_view text, bool isHexadecimal) : stream_(std::string(text)) {
    if (isHexadecimal) {
        stream_ >> std::hex;
    }
}

NumberStream::~NumberStream() = default;

bool NumberStream::isRead() const {
    throwIfOutOfMemory(stream_);
    return !stream_.fail();
}

bool NumberStream::isAtEnd() {
    char following = 0;
    // Reading a character passes over what the locale calls white space.
    const bool isThere = static_cast<bool>(stream_ >> following);
    throwIfOutOfMemory(stream_);
    return !isThere;
}

}  // namespace

template <typename T>
std::optional<T> numberFromStream(std::string_view text, Trailing trailing, bool hexadecimal) {
    NumberStream stream(text, hexadecimal);
    T number{};
    const bool isNumber =
        stream.read(number) && (trailing == Trailing::ignored || stream.isAtEnd());
    return isNumber ? std::optional<T>(number) : std::nullopt;
}

template <typename T>
std::string textFromStream(T number) {
    std::ostringstream stream;
    stream << number;
    throwIfOutOfMemory(stream);
    return stream.str();
}

template std::optional<bool> numberFromStream(std::string_view, Trailing, bool);
template std::optional<int> numberFromStream(std::string_view, Trailing, bool);
template std::optional<unsigned> numberFromStream(std::string_view, Trailing, bool);
template std::optional<long long> numberFromStream(std::string_view, Trailing, bool);
template std::optional<unsigned long long> numberFromStream(std::string_view, Trailing, bool);
template std::optional<double> numberFromStream(std::string_view, Trailing, bool);

template std::string textFromStream(long long);
template std::string textFromStream(unsigned long long);
template std::string textFromStream(double);

}  // namespace zarn_3_3::internal
