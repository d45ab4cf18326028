#include "client.h"
#include "zarn/typed.h"

int main(int argc, char** argv) {
    zarn::Parser parser(zarn::flagUnknownIsError);
    parser.declare("main:Options",
                   {
                       zarn::option<std::string>("name", "whom to greet").byDefault("world"),
                       zarn::option<int>("count", "how often").byDefault(1),
                       zarn::option<double>("ratio", "how loud").byDefault(0.5),
                       zarn::option("quiet", "say nothing"),
                       zarn::positional("file", "what to read"),
                   });

    const zarn::ParseOutcome parsed = parser.parse(argc, argv);
    if (!parsed) {
        std::fprintf(stderr, "%s\n", parsed.text.c_str());
        return parsed.code;
    }
    const Values<const char*> values{zarn::valueOr(parsed.result, "name", ""),
                                     zarn::valueOr(parsed.result, "count", 0),
                                     zarn::valueOr(parsed.result, "ratio", 0.0),
                                     zarn::isGiven(parsed.result, "quiet"),
                                     zarn::valueOr(parsed.result, "file", "")};
    return values.print();
}
