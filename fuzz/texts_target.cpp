// Texts of whatever bytes, taken apart beside plain ways to do the same.

#include "text/plain_ways.h"

#include <optional>

#include "bytes.h"
#include "support/grouping_locale.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zarn_3_3::testing_support;
    fuzzing::Bytes bytes(data, size);
    std::optional<GroupingLocale> locale;
    if (bytes.below(4) == 3) {
        locale.emplace();
    }
    const std::size_t subject = bytes.below(3);
    const std::size_t indent = bytes.below(48);
    const std::size_t width = 3 + bytes.below(96);
    const std::string head = subject == 0 ? bytes.text(60) : "";
    const std::string_view text = bytes.rest();  // no byte to spare behind it
    if (subject == 0) {
        checkParagraph(text, head, indent, width);
    } else if (subject == 1) {
        checkCuts(text);
    } else {
        checkReading(text);
        checkWriting(fuzzing::Bytes(bytes).number<long long>());
        checkWriting(fuzzing::Bytes(bytes).number<unsigned long long>());
        checkWriting(fuzzing::Bytes(bytes).number<double>());
    }
    return 0;
}
