// Clients and moments that a library in a long-lived tool meets one day. Each function returns how
// many cases it went through.

#ifndef ZARN_HOSTILE_HOSTILE_H
#define ZARN_HOSTILE_HOSTILE_H

#include <string>

namespace zarn_3_3::hostile {

long passBrokenArguments();
long passHugeArguments();
long readFilesWithoutEnd(const std::string& folder);
long actInsideEvents(const std::string& folder);
long useUpTheSequence();
long destroyInAnyOrder();
long keepManyTexts();
long writeToBrokenStreams();

}  // namespace zarn_3_3::hostile

#endif  // ZARN_HOSTILE_HOSTILE_H
