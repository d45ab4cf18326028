#include <args.hxx>
#include <string>

#include "client.h"

int main(int argc, char** argv) {
    args::ArgumentParser parser("greets");
    args::ValueFlag<std::string> name(parser, "name", "whom to greet", {"name"}, "world");
    args::ValueFlag<int> count(parser, "count", "how often", {"count"}, 1);
    args::ValueFlag<double> ratio(parser, "ratio", "how loud", {"ratio"}, 0.5);
    args::Flag quiet(parser, "quiet", "say nothing", {"quiet"});
    args::Positional<std::string> file(parser, "file", "what to read");
    try {
        parser.ParseCLI(argc, argv);
    } catch (const args::Error& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    const Values<std::string> values{
        args::get(name), args::get(count), args::get(ratio), args::get(quiet), args::get(file)};
    return values.print();
}
