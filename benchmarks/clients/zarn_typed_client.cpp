#include "client.h"
#include "zarn/typed.h"

int main(int argc, char** argv) {
    zarn::Parser parser({}, zarn::flagUnknownIsError);
    parser.declare("main:Options",
                   {
                       zarn::option<std::string>("name", "whom to greet").byDefault("world"),
                       zarn::option<int>("count", "how often").byDefault(1),
                       zarn::option<double>("ratio", "how loud").byDefault(0.5),
                       zarn::option("quiet", "say nothing"),
                       zarn::positional("file", "what to read"),
                   });

    const zarn::Result result = parser.parse(argc, argv);
    if (!result) {
        std::fprintf(stderr, "%s\n", result.text());
        return result.code();
    }
    const Values<const char*> values{result.valueOr("name", ""),
                                     result.valueOr("count", 0),
                                     result.valueOr("ratio", 0.0),
                                     result.isGiven("quiet"),
                                     result.valueOr("file", "")};
    return values.print();
}
