#include <cstdio>
#include <cxxopts.hpp>
#include <string>

int main(int argc, char** argv) {
    std::string name;
    std::string file;
    int count = 0;
    double ratio = 0;
    bool quiet = false;
    cxxopts::Options options("client", "greets");
    options.add_options()  //
        ("name", "whom to greet", cxxopts::value(name)->default_value("world"))(
            "count", "how often", cxxopts::value(count)->default_value("1"))(
            "ratio", "how loud", cxxopts::value(ratio)->default_value("0.5"))(
            "quiet", "say nothing", cxxopts::value(quiet))(
            "file", "what to read", cxxopts::value(file));
    options.parse_positional({"file"});
    try {
        options.parse(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    std::printf("%s %d %g %d %s\n", name.c_str(), count, ratio, quiet ? 1 : 0, file.c_str());
    return 0;
}
