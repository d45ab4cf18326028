// The debug assertion: what the library does when it is used in a way that cannot be right.

#ifndef ZARN_PLATFORM_ASSERTION_H
#define ZARN_PLATFORM_ASSERTION_H

namespace TROV_2_18 {

// Reports that the condition `text` does not hold. Builds without NDEBUG write it to the error
// stream and abort; others do nothing, so the caller goes on with something harmless.
//
// The definition stands in a file of its own: a test program that defines the function itself gets
// the reports instead.
void debugAssertionFailed(const char* text) noexcept;

}  // namespace TROV_2_18

#endif  // ZARN_PLATFORM_ASSERTION_H
