#include <cxxopts.hpp>
#include <string>

#include "client.h"

int main(int argc, char** argv) {
    Values<std::string> values;
    cxxopts::Options options("client", "greets");
    options.add_options()  //
        ("name", "whom to greet", cxxopts::value(values.name)->default_value("world"))(
            "count", "how often", cxxopts::value(values.count)->default_value("1"))(
            "ratio", "how loud", cxxopts::value(values.ratio)->default_value("0.5"))(
            "quiet", "say nothing", cxxopts::value(values.quiet))(
            "file", "what to read", cxxopts::value(values.file));
    options.parse_positional({"file"});
    try {
        options.parse(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return values.print();
}
