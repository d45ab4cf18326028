#include <getopt.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const option options[] = {
        {"name",  required_argument, nullptr, 'n'},
        {"count", required_argument, nullptr, 'c'},
        {"ratio", required_argument, nullptr, 'r'},
        {"quiet", no_argument,       nullptr, 'q'},
        {nullptr, 0,                 nullptr, 0  },
    };
    const char* name = "world";
    int count = 1;
    double ratio = 0.5;
    int quiet = 0;
    int code = 0;
    while ((code = getopt_long(argc, argv, "", options, nullptr)) != -1) {
        switch (code) {
            case 'n':
                name = optarg;
                break;
            case 'c':
                count = std::atoi(optarg);
                break;
            case 'r':
                ratio = std::strtod(optarg, nullptr);
                break;
            case 'q':
                quiet = 1;
                break;
            default:
                return 1;
        }
    }
    const char* file = optind < argc ? argv[optind] : "";
    std::printf("%s %d %g %d %s\n", name, count, ratio, quiet, file);
    return 0;
}
