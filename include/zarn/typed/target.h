// The variables into which values go.

#ifndef ZARN_TYPED_TARGET_H
#define ZARN_TYPED_TARGET_H

#include <cstddef>
#include <memory>
#include <new>
#include <optional>
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

// The value of an option of type T, which was found to be one, as an Element.
template <typename T, typename Element>
Element elementOf(const Value& value) {
    if constexpr (isText<T>) {
        return Element(value.text);
    } else if constexpr (std::is_same_v<T, Switch>) {
        return true;
    } else if constexpr (std::is_same_v<T, bool>) {
        return value.text == nullptr || value.value.get<bool>();
    } else if constexpr (isNumber<T>) {
        return static_cast<Element>(value.value.get<Plain<T>>());
    } else {
        std::string reason;
        std::optional<T> found = Conversion<T>::read(value.text, reason);
        if (!found) {
            mistake(value.text, "a Conversion that has read this text does not read it again");
        }
        return *std::move(found);
    }
}

// A variable of type V.
template <typename V>
struct TargetBase {
    static_assert(std::is_nothrow_swappable_v<V>,
                  "variables are written all or none: their exchange must not throw");
    static_assert(alignof(V) <= alignof(std::max_align_t),
                  "variables have the alignment of what operator new gives");

    static void exchange(void* variable, void* made) noexcept {
        using std::swap;
        swap(*static_cast<V*>(variable), *static_cast<V*>(made));
    }

    static void destroy(void* made) noexcept { std::destroy_at(static_cast<V*>(made)); }
};

// A variable of type V for a switch that stores a constant in it.
template <typename V>
struct ConstantOf : TargetBase<V> {
    static void make(void* place, const Given& given) {
        new (place) V(*static_cast<const V*>(given.constant));
    }
    static variant_t current(const void* /*variable*/) { return {}; }

    // The constant itself, which is one of its kind.
    static void release(void* constant) noexcept { delete static_cast<V*>(constant); }

    static constexpr TargetKind kind{
        sizeof(V), &make, &TargetBase<V>::exchange, &TargetBase<V>::destroy, &current, false};
};

// A variable of type V for an option with values of type T.
template <typename T, typename V>
struct TargetOf : TargetBase<V> {
    using Element = typename VariableOf<V>::Element;
    static constexpr bool isVector = VariableOf<V>::isVector;

    static_assert(goesInto<T, Element>(),
                  "into() wants a variable of the type of the option, an optional or a vector of "
                  "it; for a switch a bool or an integer, for a text a std::string or a path");

    static void make(void* place, const Given& given) {
        if constexpr (isVector) {
            V all;
            all.reserve(given.count);
            for (std::size_t i = 0; i < given.count; ++i) {
                all.push_back(elementOf<T, Element>(given.values[i]));
            }
            new (place) V(std::move(all));
        } else if constexpr (std::is_same_v<T, Switch> && !std::is_same_v<Element, bool>) {
            new (place) V(static_cast<Element>(given.count));
        } else {
            new (place) V(elementOf<T, Element>(given.last));
        }
    }

    static variant_t current(const void* variable) {
        const V& held = *static_cast<const V*>(variable);
        if constexpr (isVector || std::is_same_v<T, Switch> || !isWritten<T>) {
            return {};
        } else if constexpr (std::is_same_v<V, Element>) {
            return shown(held);
        } else {
            return held ? shown(*held) : variant_t();
        }
    }

    static variant_t shown(const Element& value) {
        if constexpr (isText<T>) {
            return plainValue(value);
        } else {
            return plainValue<T>(T{value});
        }
    }

    static constexpr TargetKind kind{
        sizeof(V), &make, &TargetBase<V>::exchange, &TargetBase<V>::destroy, &current, isVector};
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TYPED_TARGET_H
