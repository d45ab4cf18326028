#include "text/paragraph.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace zarn_3_3 {
namespace {

// Nobody asks for so little: neither the help nor WordWrappedText, whose paragraphs are scenarios.
TEST(ParagraphString, NeedsAColumn) {
    EXPECT_THROW(paragraphString("a", "", 0, 2), std::invalid_argument);
    EXPECT_THROW(paragraphString("a", "", 3, 1), std::out_of_range);
}

}  // namespace
}  // namespace zarn_3_3
