// The variables into which values go.

#ifndef ZARN_TYPED_TARGET_H
#define ZARN_TYPED_TARGET_H

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "zarn/typed/engine.h"
#include "zarn/typed/value.h"

namespace zarn_3_3::internal {

template <typename V>
struct VariableOf {
    using Element = V;
    static constexpr bool isVector = false;
};
template <typename E>
struct VariableOf<std::optional<E>> : VariableOf<E> {};
template <typename E>
struct VariableOf<std::vector<E>> {
    using Element = E;
    static constexpr bool isVector = true;
};

// Whether values of type T may go into a variable for single values of type E.
template <typename T, typename E>
constexpr bool goesInto() {
    if constexpr (std::is_same_v<T, Switch>) {
        return std::is_same_v<E, bool> || (isNumber<E> && std::is_integral_v<E>);
    } else if constexpr (isText<T>) {
        return std::is_same_v<E, std::string> || isPath<E>;
    } else {
        return std::is_same_v<T, E> || (isConverted<T> && std::is_convertible_v<T, E>);
    }
}

template <typename E>
E readAgain(const Value& value) {
    std::optional<E> found = read<E>(value, nullptr);
    if (!found) {
        throw std::logic_error("zarn: a Conversion that has read a text does not read it again");
    }
    return *std::move(found);
}

// A variable of type V for an option with values of type T.
template <typename T, typename V>
class TargetOf final : public Target {
    using Element = typename VariableOf<V>::Element;
    static constexpr bool isVector = VariableOf<V>::isVector;

    static_assert(goesInto<T, Element>(),
                  "into() wants a variable of the type of the option, an optional or a vector of "
                  "it; for a switch a bool or an integer, for a text a std::string or a path");
    static_assert(!goesInto<T, Element>() || std::is_nothrow_move_assignable_v<V>,
                  "variables are written all or none: their assignment must not throw");

public:
    explicit TargetOf(V& variable) : variable_(variable) {}

    void take(const Value* values, std::size_t count, const Value& last) override {
        if constexpr (isVector) {
            V all;
            all.reserve(count);
            for (std::size_t i = 0; i < count; ++i) {
                all.push_back(element(values[i]));
            }
            ready_ = std::move(all);
        } else if constexpr (std::is_same_v<T, Switch> && !std::is_same_v<Element, bool>) {
            ready_ = static_cast<Element>(count);
        } else {
            ready_ = element(last);
        }
    }

    void write() noexcept override {
        if (ready_) {
            variable_ = *std::move(ready_);
            ready_.reset();
        }
    }

    void drop() noexcept override { ready_.reset(); }

    variant_t current() const override {
        if constexpr (isVector || std::is_same_v<T, Switch> || !isWritten<T>) {
            return {};
        } else if constexpr (std::is_same_v<V, Element>) {
            return shown(variable_);
        } else {
            return variable_ ? shown(*variable_) : variant_t();
        }
    }

    const void* address() const noexcept override { return &variable_; }
    bool takesMany() const noexcept override { return isVector; }

private:
    static variant_t shown(const Element& value) {
        if constexpr (isText<T>) {
            return plainValue(value);
        } else {
            return plainValue<T>(T{value});
        }
    }

    static Element element(const Value& value) {
        if constexpr (isText<T> || std::is_same_v<T, Switch>) {
            return readAgain<Element>(value);
        } else {
            return readAgain<T>(value);
        }
    }

    V& variable_;
    std::optional<V> ready_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TYPED_TARGET_H
