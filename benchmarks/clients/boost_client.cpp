#include <boost/program_options.hpp>
#include <string>

#include "client.h"

namespace po = boost::program_options;

int main(int argc, char** argv) {
    Values<std::string> values;
    po::options_description options("Options");
    options.add_options()  //
        ("name", po::value(&values.name)->default_value("world"), "whom to greet")(
            "count", po::value(&values.count)->default_value(1), "how often")(
            "ratio", po::value(&values.ratio)->default_value(0.5), "how loud")(
            "quiet", po::bool_switch(&values.quiet), "say nothing")(
            "file", po::value(&values.file), "what to read");
    po::positional_options_description positional;
    positional.add("file", 1);
    try {
        po::variables_map map;
        po::store(po::command_line_parser(argc, argv).options(options).positional(positional).run(),
                  map);
        po::notify(map);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return values.print();
}
