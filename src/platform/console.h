// The streams of the console.

#ifndef ZARN_PLATFORM_CONSOLE_H
#define ZARN_PLATFORM_CONSOLE_H

#include <ostream>

namespace TROV_2_18::strings::pl2 {

extern std::ostream& ucout;
extern std::ostream& ucerr;

}  // namespace TROV_2_18::strings::pl2

#endif  // ZARN_PLATFORM_CONSOLE_H
