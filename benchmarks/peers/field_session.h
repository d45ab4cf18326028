// A tool on a C interface: the parser hands it texts, and it keeps the values itself.

#ifndef ZARN_PEERS_FIELD_SESSION_H
#define ZARN_PEERS_FIELD_SESSION_H

#include <cstdio>
#include <functional>

#include "peer.h"

namespace zarn_benchmarks {

// A value of the kind that its option is of.
union Field {
    Field(const char* value) : text(value) {}
    Field(int value) : integer(value) {}
    Field(double value) : real(value) {}

    const char* text;  // lives as long as the session
    int integer;
    double real;
};

void addField(Kind kind, Field field, Checksum* sum);

class FieldSession : public Session {
public:
    void read(std::size_t option, Checksum* sum) final;

protected:
    explicit FieldSession(const Vocabulary& vocabulary)
        : Session(vocabulary), fields_(vocabulary.options.size()) {}

    void keep(std::size_t option, Field value) { fields_[option].push_back(value); }

    // Converts and keeps a value. Throws when it is wrong.
    void keepArgument(std::size_t option, const char* text);

private:
    std::vector<std::vector<Field>> fields_;
};

// Throws unless `text` is one of the choices.
void requireChoice(std::string_view text);

// What `print` writes.
std::string printed(const std::function<void(std::FILE*)>& print);

}  // namespace zarn_benchmarks

#endif  // ZARN_PEERS_FIELD_SESSION_H
