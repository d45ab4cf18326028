#include <argp.h>

#include <cstdio>
#include <cstdlib>

namespace {

struct Values {
    const char* name = "world";
    int count = 1;
    double ratio = 0.5;
    int quiet = 0;
    const char* file = "";
};

error_t take(int key, char* argument, argp_state* state) {
    auto* values = static_cast<Values*>(state->input);
    switch (key) {
        case 'n':
            values->name = argument;
            return 0;
        case 'c':
            values->count = std::atoi(argument);
            return 0;
        case 'r':
            values->ratio = std::strtod(argument, nullptr);
            return 0;
        case 'q':
            values->quiet = 1;
            return 0;
        case ARGP_KEY_ARG:
            values->file = argument;
            return 0;
        default:
            return ARGP_ERR_UNKNOWN;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const argp_option options[] = {
        {"name",  'n', "TEXT",   0, "whom to greet", 0},
        {"count", 'c', "NUMBER", 0, "how often",     0},
        {"ratio", 'r', "NUMBER", 0, "how loud",      0},
        {"quiet", 'q', nullptr,  0, "say nothing",   0},
        {nullptr, 0,   nullptr,  0, nullptr,         0},
    };
    const argp definition{options, take, "FILE", "greets", nullptr, nullptr, nullptr};
    Values values;
    if (argp_parse(&definition, argc, argv, 0, nullptr, &values) != 0) {
        return 1;
    }
    std::printf(
        "%s %d %g %d %s\n", values.name, values.count, values.ratio, values.quiet, values.file);
    return 0;
}
