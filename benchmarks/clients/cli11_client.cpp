#include <CLI/CLI.hpp>
#include <cstdio>
#include <string>

int main(int argc, char** argv) {
    std::string name = "world";
    std::string file;
    int count = 1;
    double ratio = 0.5;
    bool quiet = false;
    CLI::App app("greets");
    app.add_option("--name", name, "whom to greet");
    app.add_option("--count", count, "how often");
    app.add_option("--ratio", ratio, "how loud");
    app.add_flag("--quiet", quiet, "say nothing");
    app.add_option("file", file, "what to read");
    CLI11_PARSE(app, argc, argv);
    std::printf("%s %d %g %d %s\n", name.c_str(), count, ratio, quiet ? 1 : 0, file.c_str());
    return 0;
}
