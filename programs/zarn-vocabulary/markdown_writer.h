// Pages for the web and for repositories.

#ifndef ZARN_VOCABULARY_MARKDOWN_WRITER_H
#define ZARN_VOCABULARY_MARKDOWN_WRITER_H

#include <string>

#include "document.h"

namespace vocabulary {

// A page in Markdown, with tables as GitHub has them.
std::string asMarkdown(const Document& document);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_MARKDOWN_WRITER_H
