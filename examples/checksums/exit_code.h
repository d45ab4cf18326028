// What the tool tells the script that called it.

#ifndef ZARN_CHECKSUMS_EXIT_CODE_H
#define ZARN_CHECKSUMS_EXIT_CODE_H

namespace checksums {

// The greater one wins when several apply.
enum ExitCode : int {
    exitOk = 0,
    exitDifferences = 1,
    exitUsage = 2,
    exitFile = 3,
    exitInternal = 4,
};

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_EXIT_CODE_H
