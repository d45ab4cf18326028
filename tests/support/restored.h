// A variable that gets its value back.

#ifndef ZARN_TESTS_SUPPORT_RESTORED_H
#define ZARN_TESTS_SUPPORT_RESTORED_H

#include <utility>

namespace zarn_3_3::testing_support {

// While it lives, `variable` has another value.
template <typename Type>
class Restored {
public:
    Restored(Type& variable, Type meanwhile)
        : changed(variable), before(std::exchange(variable, std::move(meanwhile))) {}
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;
    ~Restored() { changed = std::move(before); }

private:
    Type& changed;
    Type before;
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_RESTORED_H
