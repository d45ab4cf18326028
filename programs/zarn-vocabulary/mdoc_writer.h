// Pages for man.

#ifndef ZARN_VOCABULARY_MDOC_WRITER_H
#define ZARN_VOCABULARY_MDOC_WRITER_H

#include <string>

#include "document.h"

namespace vocabulary {

// A page of the section 1 in mdoc, in ASCII alone. `date` is one as in "January 31, 2026".
std::string asManualPage(const Document& document, const std::string& date);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_MDOC_WRITER_H
