// What the tool does. Each action writes its results and says how it went; those that need a
// manifest throw FileError when they have none.

#ifndef ZARN_CHECKSUMS_ACTIONS_H
#define ZARN_CHECKSUMS_ACTIONS_H

#include "command_line.h"
#include "console.h"
#include "exit_code.h"

namespace checksums {

ExitCode createManifest(const Command& command, const Results& results);
ExitCode verifyManifest(const Command& command, const Results& results);
ExitCode compareManifests(const Command& command, const Results& results);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_ACTIONS_H
