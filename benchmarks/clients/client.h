// What every client learns from its arguments, and prints.

#ifndef ZARN_CLIENTS_CLIENT_H
#define ZARN_CLIENTS_CLIENT_H

#include <cstdio>

// No more than a client in C needs: `Text` is its own choice.
template <typename Text>
struct Values {
    Text name = "world";
    int count = 1;
    double ratio = 0.5;
    bool quiet = false;
    Text file = "";

    // The exit code of the client.
    int print() const {
        std::printf("%s %d %g %d %s\n", &name[0], count, ratio, quiet ? 1 : 0, &file[0]);
        return 0;
    }
};

#endif  // ZARN_CLIENTS_CLIENT_H
