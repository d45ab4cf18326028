// Debug assertions, recorded instead of ending the program.

#ifndef ZARN_TESTS_SUPPORT_ASSERTION_DOUBLE_H
#define ZARN_TESTS_SUPPORT_ASSERTION_DOUBLE_H

#include <string>
#include <vector>

// The texts reported since the last call, in order. Linking this file replaces the assertion hook
// of the library, whatever the build type.
std::vector<std::string> takeAssertions();

#endif  // ZARN_TESTS_SUPPORT_ASSERTION_DOUBLE_H
