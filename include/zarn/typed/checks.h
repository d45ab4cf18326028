// What a value of an option is asked beyond its type.

#ifndef ZARN_TYPED_CHECKS_H
#define ZARN_TYPED_CHECKS_H

#include <sys/stat.h>

#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "zarn/typed/engine.h"
#include "zarn/typed/value.h"

namespace zarn_3_3::internal {

// That the text can be read as a T.
template <typename T>
class Readable final : public Check {
public:
    bool holds(const Value& value, std::string& reason) const override {
        return read<T>(value, &reason).has_value();
    }
};

// Whether a predicate answers true or false to these arguments. One that could, but not as const,
// is refused here.
template <typename Predicate, typename... Arguments>
constexpr bool isPredicate() {
    constexpr bool isAsked = std::is_invocable_r_v<bool, Predicate&, const Arguments&...>;
    static_assert(!isAsked || std::is_invocable_r_v<bool, const Predicate&, const Arguments&...>,
                  "a check keeps no state: it is called as const, which a mutable lambda is not");
    return isAsked;
}

// That predicate(value as a T) is true.
template <typename T, typename Predicate>
class Holds final : public Check {
public:
    Holds(Predicate predicate, std::string reason)
        : predicate_(std::move(predicate)), reason_(std::move(reason)) {}

    bool holds(const Value& value, std::string& reason) const override {
        const std::optional<T> asked = read<T>(value, &reason);
        if (asked && !predicate_(*asked)) {
            reason = reason_;
            return false;
        }
        return asked.has_value();
    }

private:
    Predicate predicate_;
    std::string reason_;
};

// That predicate() is true.
template <typename Predicate>
class HoldsForLine final : public Check {
public:
    HoldsForLine(Predicate predicate, std::string reason)
        : predicate_(std::move(predicate)), reason_(std::move(reason)) {}

    bool holds(const Value& /*value*/, std::string& reason) const override {
        if (predicate_()) {
            return true;
        }
        reason = reason_;
        return false;
    }

private:
    Predicate predicate_;
    std::string reason_;
};

// That finder() has nothing to say.
template <typename Finder>
class FindsNoneInLine final : public Check {
public:
    explicit FindsNoneInLine(Finder finder) : finder_(std::move(finder)) {}

    bool holds(const Value& /*value*/, std::string& reason) const override {
        reason = finder_();
        return reason.empty();
    }

private:
    Finder finder_;
};

// That the text is the path of an existing file, or folder. What a link leads to counts.
class Exists final : public Check {
public:
    enum class Kind { file, folder };

    explicit Exists(Kind kind) : kind_(kind) {}

    bool holds(const Value& value, std::string& reason) const override {
        struct stat found {};
        const bool isThere = value.text != nullptr && stat(value.text, &found) == 0;
        if (isThere && S_ISDIR(found.st_mode) == (kind_ == Kind::folder)) {
            return true;
        }
        reason =
            kind_ == Kind::folder ? "it must be an existing folder" : "it must be an existing file";
        return false;
    }

    bool isLasting() const override { return false; }

private:
    Kind kind_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TYPED_CHECKS_H
