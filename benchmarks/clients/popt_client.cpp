#include <popt.h>

#include <cstdlib>

#include "client.h"

int main(int argc, char** argv) {
    char* name = nullptr;
    int count = 1;
    double ratio = 0.5;
    int quiet = 0;
    const poptOption options[] = {
        {"name",  '\0', POPT_ARG_STRING, &name,   0, "whom to greet", "TEXT"  },
        {"count", '\0', POPT_ARG_INT,    &count,  0, "how often",     "NUMBER"},
        {"ratio", '\0', POPT_ARG_DOUBLE, &ratio,  0, "how loud",      "NUMBER"},
        {"quiet", '\0', POPT_ARG_NONE,   &quiet,  0, "say nothing",   nullptr },
        {nullptr, '\0', 0,               nullptr, 0, nullptr,         nullptr },
    };
    poptContext context =
        poptGetContext("client", argc, const_cast<const char**>(argv), options, 0);
    const int code = poptGetNextOpt(context);
    if (code != -1) {
        std::fprintf(stderr, "%s\n", poptStrerror(code));
        return 1;
    }
    const char* file = poptGetArg(context);
    const char* greeted = name != nullptr ? name : "world";
    Values<const char*>{greeted, count, ratio, quiet != 0, file != nullptr ? file : ""}.print();
    std::free(name);
    poptFreeContext(context);
    return 0;
}
