// Values that are made of texts: enumerations, paths, characters, and types of your own.

#ifndef ZARN_TYPED_CONVERSION_H
#define ZARN_TYPED_CONVERSION_H

#include <cstring>
#include <optional>
#include <string>
#include <type_traits>

namespace zarn_3_3 {

// Makes options of a type of your own possible. Specialise it:
//
//     template <>
//     struct zarn::Conversion<Point> {
//         static std::optional<Point> read(const char* text, std::string& reason);
//         static std::string write(const Point& point);
//     };
//
// read   the value that `text`, which is not empty, stands for; or nothing, and in `reason` why, to
//        be put behind a colon: "it must be two numbers, as in 3:4". It is asked whenever the value
//        is, so it should give equal answers
// write  a text that read takes; wanted only by options with defaults and allowed values
//
// A std::exception that they throw inside a parse ends it with resultException.
template <typename T, typename = void>
struct Conversion;

// One value of an enumeration, as users type it.
template <typename E>
struct Name {
    const char* name;
    E value;
};

// The values of an enumeration, which are then the allowed ones of its options. Specialise it:
//
//     template <>
//     struct zarn::Names<Mode> {
//         static constexpr zarn::Name<Mode> table[] = {
//             {"fast", Mode::fast},
//             {"thorough", Mode::thorough},
//         };
//     };
//
// Where the values are 0, 1, 2 and so on, their names will do:
//
//     static constexpr const char* table[] = {"fast", "thorough"};
//
// The table is not empty. Of two names of one value, help shows the first.
template <typename E>
struct Names;

namespace internal {

template <typename T, typename = void>
inline constexpr bool isConverted = false;
template <typename T>
inline constexpr bool isConverted<T, std::void_t<decltype(&Conversion<T>::read)>> = true;

template <typename T, typename = void>
inline constexpr bool isWritten = !isConverted<T>;
template <typename T>
inline constexpr bool isWritten<T, std::void_t<decltype(&Conversion<T>::write)>> = true;

template <typename T, typename = void>
inline constexpr bool isNamed = false;
template <typename T>
inline constexpr bool isNamed<T, std::void_t<decltype(Names<T>::table)>> = true;

// An entry of its table.
template <typename E>
constexpr Name<E> nameIn(const Name<E>& entry) {
    return entry;
}
template <typename E>
constexpr Name<E> nameIn(const char* const& entry) {
    return {entry, static_cast<E>(&entry - Names<E>::table)};
}

template <typename T, typename = void>
inline constexpr bool isPath = false;
template <typename T>
inline constexpr bool isPath<T, std::void_t<decltype(T::preferred_separator)>> = true;

}  // namespace internal

// std::filesystem::path, without a need for its header.
template <typename T>
struct Conversion<T, std::enable_if_t<internal::isPath<T>>> {
    static std::optional<T> read(const char* text, std::string& /*reason*/) { return T(text); }
    static std::string write(const T& path) { return path.string(); }
};

// One byte, which may be any.
template <>
struct Conversion<char> {
    static std::optional<char> read(const char* text, std::string& reason) {
        if (std::strlen(text) == 1) {
            return *text;
        }
        reason = "it must be one ASCII character";
        return std::nullopt;
    }
    static std::string write(char character) { return std::string(1, character); }
};

// Enumerations with a table.
template <typename E>
struct Conversion<E, std::enable_if_t<internal::isNamed<E>>> {
    static std::optional<E> read(const char* text, std::string& reason) {
        for (const auto& each : Names<E>::table) {
            if (std::strcmp(internal::nameIn<E>(each).name, text) == 0) {
                return internal::nameIn<E>(each).value;
            }
        }
        reason = "it is no name of a value";
        return std::nullopt;
    }
    static std::string write(E value) {
        for (const auto& each : Names<E>::table) {
            if (internal::nameIn<E>(each).value == value) {
                return internal::nameIn<E>(each).name;
            }
        }
        return "";
    }
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_CONVERSION_H
