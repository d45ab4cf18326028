#include <getopt.h>

#include <cstdlib>

#include "client.h"

int main(int argc, char** argv) {
    const option options[] = {
        {"name",  required_argument, nullptr, 'n'},
        {"count", required_argument, nullptr, 'c'},
        {"ratio", required_argument, nullptr, 'r'},
        {"quiet", no_argument,       nullptr, 'q'},
        {nullptr, 0,                 nullptr, 0  },
    };
    Values<const char*> values;
    int code = 0;
    while ((code = getopt_long(argc, argv, "", options, nullptr)) != -1) {
        switch (code) {
            case 'n':
                values.name = optarg;
                break;
            case 'c':
                values.count = std::atoi(optarg);
                break;
            case 'r':
                values.ratio = std::strtod(optarg, nullptr);
                break;
            case 'q':
                values.quiet = true;
                break;
            default:
                return 1;
        }
    }
    if (optind < argc) {
        values.file = argv[optind];
    }
    return values.print();
}
