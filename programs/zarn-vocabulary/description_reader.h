// Descriptions of tools as they are read: JSON of every format that was ever released.

#ifndef ZARN_VOCABULARY_DESCRIPTION_READER_H
#define ZARN_VOCABULARY_DESCRIPTION_READER_H

#include <stdexcept>
#include <string>

#include "description.h"

namespace vocabulary {

// A text that is no description, or one of a newer format. It says what is wrong and where.
class UnreadableDescription : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// `source` names the text in what is thrown. Keys that are not known are skipped.
Description readDescription(const std::string& text, const std::string& source);

// Throws UnreadableDescription for a file that cannot be read, too.
Description readDescriptionFile(const std::string& path);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_DESCRIPTION_READER_H
