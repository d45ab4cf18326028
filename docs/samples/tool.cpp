// A tool for the guide: what it declares, and what it does when its command line is right.

#include <zarn/typed.h>

#include <iostream>
#include <string>
#include <string_view>

int main(int argc, char** argv) {
    zarn::Parser parser(zarn::flagUnknownIsError | zarn::flagPositionalWithoutDash |
                        zarn::flagPositionalBehindTerminator);
    // <part>
    const zarn::ParseOutcome parsed = parser.parse(argc, argv);
    if (!parsed) {
        std::cerr << parsed.text << '\n';
        return parsed.code;
    }
    [[maybe_unused]] zarn::IParseResult& result = parsed.result;
    // <part>
}
