// How the values of an option that keeps all of them are read.

#ifndef ZARN_PEERS_VALUE_LISTS_H
#define ZARN_PEERS_VALUE_LISTS_H

#include <string>
#include <vector>

#include "checksum.h"

namespace zarn_benchmarks {

inline void addAll(const std::vector<std::string>& values, Checksum* sum) {
    for (const std::string& value : values) {
        sum->addText(value);
    }
}

inline void addAll(const std::vector<int>& values, Checksum* sum) {
    for (int value : values) {
        sum->addInteger(value);
    }
}

}  // namespace zarn_benchmarks

#endif  // ZARN_PEERS_VALUE_LISTS_H
