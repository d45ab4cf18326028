#include "peers/field_store.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace zarn_benchmarks {

namespace {

int toInteger(const char* text) {
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 10);
    if (end == text || *end != '\0' || errno != 0 || value < INT_MIN || value > INT_MAX) {
        throw std::runtime_error("not an integer");
    }
    return static_cast<int>(value);
}

double toReal(const char* text) {
    char* end = nullptr;
    const double value = std::strtod(text, &end);
    if (end == text || *end != '\0') {
        throw std::runtime_error("not a number");
    }
    return value;
}

}  // namespace

void requireChoice(const char* text) {
    for (const char* choice : choices) {
        if (std::strcmp(choice, text) == 0) {
            return;
        }
    }
    throw std::runtime_error("not one of the choices");
}

void FieldStore::keepText(std::size_t option, const char* text) {
    Field field;
    field.text = text;
    fields[option].push_back(field);
}

void FieldStore::keepInteger(std::size_t option, int value) {
    Field field;
    field.integer = value;
    fields[option].push_back(field);
}

void FieldStore::keepReal(std::size_t option, double value) {
    Field field;
    field.real = value;
    fields[option].push_back(field);
}

void FieldStore::keep(std::size_t option, const char* text) {
    switch (vocabulary.options[option].kind) {
        case Kind::integer:
            keepInteger(option, toInteger(text));
            break;
        case Kind::real:
            keepReal(option, toReal(text));
            break;
        case Kind::choice:
            requireChoice(text);
            keepText(option, text);
            break;
        case Kind::text:
            keepText(option, text);
            break;
        case Kind::flag:
        case Kind::toggle:
            keepInteger(option, 1);
            break;
    }
}

void FieldStore::read(const std::vector<std::size_t>& asked, Checksum* sum) const {
    for (std::size_t option : asked) {
        const Kind kind = vocabulary.options[option].kind;
        for (const Field& field : fields[option]) {
            readOne(kind, field, sum);
        }
    }
}

void FieldStore::readOne(Kind kind, const Field& field, Checksum* sum) const {
    switch (kind) {
        case Kind::real:
            sum->addReal(field.real);
            break;
        case Kind::text:
        case Kind::choice:
            sum->addText(field.text);
            break;
        case Kind::integer:
        case Kind::flag:
        case Kind::toggle:
            sum->addInteger(field.integer);
            break;
    }
}

}  // namespace zarn_benchmarks
