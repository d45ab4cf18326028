// The tool in which a scenario takes place.

#ifndef ZARN_FAULTS_WORLD_H
#define ZARN_FAULTS_WORLD_H

#include <memory>
#include <optional>
#include <streambuf>
#include <string>
#include <utility>

#include "scenario.h"
#include "support/failing_new.h"
#include "support/grouping_locale.h"
#include "support/tool.h"

namespace zarn_3_3::faults {

// While it lives, memory is there: for what belongs to the driver and not to the library.
class Spared {
public:
    Spared() : left(std::exchange(memory.left, 0)) {}
    Spared(const Spared&) = delete;
    Spared& operator=(const Spared&) = delete;
    ~Spared() { memory.left = left; }

private:
    long left;
};

// Records what it hears. Refuses the value "veto-this-value", and takes care of "-my-own".
class Listener final : public EventHandler {
public:
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const Value& value) override;
    bool onUknownArgument(const char* argument) override;

    std::string events;

private:
    void hear(const char* kind, const char* text);
};

enum class State {
    fresh,  // nothing has been asked yet, and nobody listens
    used,   // arguments were parsed and texts handed out, and the listener is registered
};

struct World {
    World(const Scenario& scenario, State state);

    std::optional<GroupingLocale> locale;
    testing_support::Tool tool;
    testing_support::Tool filled;                // its result holds what goodLines give
    std::optional<testing_support::Tool> other;  // for scenarios with a vocabulary of their own
    std::shared_ptr<EventHandler> own;           // for those with a handler of their own
    IOption* item = nullptr;                     // what the scenario declared last
    Listener listener;
    const char* handedOut = "";  // a text of the parser, and what it is
    std::string asItWas;
};

// All names of the vocabulary, synonyms too.
const std::vector<std::string>& allNames();

// Arguments that use most of the vocabulary, and are right.
extern const char* const goodLines;

// Every kind of item and every setting. Texts are longer than a string keeps in itself, and
// borrowed, so that only the library takes memory.
void declareAll(IParser& parser);

// Whatever happened before, the vocabulary grows and good arguments are parsed.
void expectUsable(World& world);

// Discards what is written, and takes no memory for that.
class Discarding final : public std::streambuf {
protected:
    int_type overflow(int_type character) override { return traits_type::not_eof(character); }
    std::streamsize xsputn(const char*, std::streamsize size) override { return size; }
};

}  // namespace zarn_3_3::faults

#endif  // ZARN_FAULTS_WORLD_H
