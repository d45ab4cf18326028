// Whether an operation inside the library succeeded.

#ifndef ZARN_TEXT_STATUS_H
#define ZARN_TEXT_STATUS_H

#include <cstdint>

namespace zarn_3_3 {

using result_t = std::int32_t;
constexpr result_t resultSuccess = 0;
constexpr result_t resultFailure = 1;

}  // namespace zarn_3_3

#endif  // ZARN_TEXT_STATUS_H
