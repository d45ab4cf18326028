#include "platform/console.h"

#include <iostream>

namespace TROV_2_18::strings::pl2 {

std::ostream& ucout = std::cout;
std::ostream& ucerr = std::cerr;

}  // namespace TROV_2_18::strings::pl2
