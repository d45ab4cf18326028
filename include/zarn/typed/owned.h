// A handle that owns what the library made.

#ifndef ZARN_TYPED_OWNED_H
#define ZARN_TYPED_OWNED_H

#include <utility>

namespace zarn_3_3 {

// Keeps an IParser or an IParseResult and frees it with destroy.
//
// It converts to a reference to the object, so it can be passed wherever one is wanted. Like a
// pointer it is const without making its object so. Moving leaves the source empty: it may then be
// destroyed and assigned to, and nothing else. The object does not move.
template <typename Interface>
class Owned {
public:
    // Takes over `made`, which may be null: the handle is then empty.
    explicit Owned(Interface* made) noexcept : object(made) {}

    Owned(Owned&& other) noexcept : object(other.release()) {}
    Owned& operator=(Owned&& other) noexcept {
        Owned moved(std::move(other));
        std::swap(object, moved.object);
        return *this;
    }
    ~Owned() {
        if (object != nullptr) {
            object->destroy();
        }
    }

    Interface* operator->() const noexcept { return object; }
    Interface& operator*() const noexcept { return *object; }
    operator Interface&() const noexcept { return *object; }

    // The object, or null when the handle is empty.
    Interface* get() const noexcept { return object; }

    // The object, which is the caller's from now on; the handle is empty.
    [[nodiscard]] Interface* release() noexcept { return std::exchange(object, nullptr); }

private:
    Interface* object;
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_OWNED_H
