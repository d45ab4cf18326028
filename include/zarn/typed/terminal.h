// Help in the width of the terminal that shows it.

#ifndef ZARN_TYPED_TERMINAL_H
#define ZARN_TYPED_TERMINAL_H

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>

#include "zarn/tooling.h"
#include "zarn/typed/engine.h"

namespace zarn_3_3 {

// Sets width and emphasis as programs on terminals do. The width is COLUMNS, where that is a number
// from 20 on, else that of the terminal at the standard output, else 80; it stays within 20 and
// 120. Help is emphasised on a terminal, unless TERM is "dumb" or NO_COLOR is set and not empty.
inline void fitToTerminal(HelpStyle& style) {
    winsize window{};
    const bool isTerminal = ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) == 0;
    internal::fitStyle(style,
                       {std::getenv("COLUMNS"),
                        std::getenv("TERM"),
                        std::getenv("NO_COLOR"),
                        isTerminal,
                        window.ws_col});
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_TERMINAL_H
