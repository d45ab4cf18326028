// Where a tool on a C interface keeps its values: the parser hands it texts, the rest is its own.

#ifndef ZARN_PEERS_FIELD_STORE_H
#define ZARN_PEERS_FIELD_STORE_H

#include <vector>

#include "checksum.h"
#include "workload.h"

namespace zarn_benchmarks {

class FieldStore {
public:
    explicit FieldStore(const Vocabulary& words)
        : vocabulary(words), fields(words.options.size()) {}

    // Converts and keeps a value; `text` must live as long as the store. Throws when it is wrong.
    void keep(std::size_t option, const char* text);

    void keepText(std::size_t option, const char* text);
    void keepInteger(std::size_t option, int value);
    void keepReal(std::size_t option, double value);

    void read(const std::vector<std::size_t>& asked, Checksum* sum) const;

private:
    union Field {
        const char* text;
        int integer;
        double real;
    };

    void readOne(Kind kind, const Field& field, Checksum* sum) const;

    const Vocabulary& vocabulary;
    std::vector<std::vector<Field>> fields;
};

// Throws unless `text` is one of the choices.
void requireChoice(const char* text);

}  // namespace zarn_benchmarks

#endif  // ZARN_PEERS_FIELD_STORE_H
