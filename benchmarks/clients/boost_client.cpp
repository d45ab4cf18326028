#include <boost/program_options.hpp>
#include <cstdio>
#include <string>

namespace po = boost::program_options;

int main(int argc, char** argv) {
    std::string name;
    std::string file;
    int count = 0;
    double ratio = 0;
    bool quiet = false;
    po::options_description options("Options");
    options.add_options()  //
        ("name", po::value(&name)->default_value("world"), "whom to greet")(
            "count", po::value(&count)->default_value(1), "how often")(
            "ratio", po::value(&ratio)->default_value(0.5), "how loud")(
            "quiet", po::bool_switch(&quiet), "say nothing")(
            "file", po::value(&file), "what to read");
    po::positional_options_description positional;
    positional.add("file", 1);
    try {
        po::variables_map values;
        po::store(po::command_line_parser(argc, argv).options(options).positional(positional).run(),
                  values);
        po::notify(values);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    std::printf("%s %d %g %d %s\n", name.c_str(), count, ratio, quiet ? 1 : 0, file.c_str());
    return 0;
}
