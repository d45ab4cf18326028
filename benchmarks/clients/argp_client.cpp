#include <argp.h>

#include <cstdlib>

#include "client.h"

namespace {

error_t take(int key, char* argument, argp_state* state) {
    auto* values = static_cast<Values<const char*>*>(state->input);
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
            values->quiet = true;
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
    Values<const char*> values;
    return argp_parse(&definition, argc, argv, 0, nullptr, &values) != 0 ? 1 : values.print();
}
