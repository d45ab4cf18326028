// Expectations of programs that go on after a failure: each that does not hold is printed, with the
// place, and makes the program fail in the end.

#ifndef ZARN_FUZZ_SUPPORT_EXPECTATION_H
#define ZARN_FUZZ_SUPPORT_EXPECTATION_H

#include <string>

namespace zarn_3_3::checking {

// Says where the program is while it lives. Places nest.
class Place {
public:
    explicit Place(const std::string& name);
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place();
};

// Returns whether it holds.
bool expect(bool holds, const std::string& what);
bool expectEqual(const std::string& found, const std::string& expected, const std::string& what);
bool expectEqual(long found, long expected, const std::string& what);

// Prints `summary` and how many expectations did not hold. What main returns.
int conclude(const std::string& summary);

}  // namespace zarn_3_3::checking

#endif  // ZARN_FUZZ_SUPPORT_EXPECTATION_H
