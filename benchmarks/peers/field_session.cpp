#include "peers/field_session.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>

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

void requireChoice(std::string_view text) {
    if (std::find(std::begin(choices), std::end(choices), text) == std::end(choices)) {
        throw std::runtime_error("not one of the choices");
    }
}

std::string printed(const std::function<void(std::FILE*)>& print) {
    char* text = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&text, &size);
    print(stream);
    std::fclose(stream);
    std::string copy(text, size);
    std::free(text);
    return copy;
}

void addField(Kind kind, Field field, Checksum* sum) {
    if (kind == Kind::real) {
        sum->add(field.real);
    } else if (kind == Kind::integer || isSwitch(kind)) {
        sum->add(field.integer);
    } else {
        sum->add(field.text);
    }
}

void FieldSession::keepArgument(std::size_t option, const char* text) {
    const Kind kind = item(option).kind;
    if (isSwitch(kind)) {
        keep(option, 1);
    } else if (kind == Kind::integer) {
        keep(option, toInteger(text));
    } else if (kind == Kind::real) {
        keep(option, toReal(text));
    } else {
        if (kind == Kind::choice) {
            requireChoice(text);
        }
        keep(option, text);
    }
}

void FieldSession::read(std::size_t option, Checksum* sum) {
    for (const Field& field : fields_[option]) {
        addField(item(option).kind, field, sum);
    }
}

}  // namespace zarn_benchmarks
