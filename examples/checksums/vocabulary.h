// What can be said on the command line.

#ifndef ZARN_CHECKSUMS_VOCABULARY_H
#define ZARN_CHECKSUMS_VOCABULARY_H

#include <zarn/typed.h>

namespace checksums {

// The names under which items are declared, announced to handlers and read back.
namespace names {
inline constexpr const char* files = "files";
inline constexpr const char* create = "create";
inline constexpr const char* verify = "verify";
inline constexpr const char* compare = "compare";
inline constexpr const char* help = "help";
inline constexpr const char* manifest = "manifest";
inline constexpr const char* algorithm = "algorithm";
inline constexpr const char* ignoreMissing = "ignore-missing";
inline constexpr const char* quiet = "quiet";
inline constexpr const char* color = "color";
inline constexpr const char* jobs = "jobs";
inline constexpr const char* hidden = "hidden";
inline constexpr const char* bufferSize = "buffer-size";
}  // namespace names

// The former name of crc32, still understood.
inline constexpr const char* deprecatedCrc = "crc";

inline constexpr unsigned maxJobs = 64;
inline constexpr unsigned maxBufferSize = 1u << 24;

void declareVocabulary(zarn::Parser& parser);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_VOCABULARY_H
