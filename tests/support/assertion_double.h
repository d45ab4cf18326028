// Debug assertions, recorded instead of ending the program.

#ifndef ZARN_TESTS_SUPPORT_ASSERTION_DOUBLE_H
#define ZARN_TESTS_SUPPORT_ASSERTION_DOUBLE_H

#include <string>

// The texts reported since the last call, in order, each with a line feed. Linking this file
// replaces the assertion hook of the library, whatever the build type.
std::string takeAssertions();

#endif  // ZARN_TESTS_SUPPORT_ASSERTION_DOUBLE_H
