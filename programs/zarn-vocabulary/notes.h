// How a command line of a tool is written: what all tools of the library share, as far as this one
// has it.

#ifndef ZARN_VOCABULARY_NOTES_H
#define ZARN_VOCABULARY_NOTES_H

#include <vector>

#include "description.h"
#include "document.h"
#include "shown_items.h"

namespace vocabulary {

// A paragraph each: actions together, abbreviations, dashes, "--", negative numbers, option files.
std::vector<Text> notesOn(const Description& description, const ShownItems& items);

// Whether what stands behind "--" goes to the places.
bool takesTerminator(const Description& description);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_NOTES_H
