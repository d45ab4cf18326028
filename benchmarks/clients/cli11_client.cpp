#include <CLI/CLI.hpp>
#include <string>

#include "client.h"

int main(int argc, char** argv) {
    Values<std::string> values;
    CLI::App app("greets");
    app.add_option("--name", values.name, "whom to greet");
    app.add_option("--count", values.count, "how often");
    app.add_option("--ratio", values.ratio, "how loud");
    app.add_flag("--quiet", values.quiet, "say nothing");
    app.add_option("file", values.file, "what to read");
    CLI11_PARSE(app, argc, argv);
    return values.print();
}
