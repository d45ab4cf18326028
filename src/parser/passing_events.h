// Events on their way to the handlers of a parser.

#ifndef ZARN_PARSER_PASSING_EVENTS_H
#define ZARN_PARSER_PASSING_EVENTS_H

#include <algorithm>
#include <vector>

namespace zarn_3_3 {

struct Value;

namespace internal {

enum class EventKind { option, value, unknownArgument };

// What tells an event from others. Equal texts have one address in a parser.
struct EventIdentity {
    EventKind kind;
    const char* text;
    const Value* value;  // null but for values
    int parse;           // the one in which it was raised

    friend bool operator==(const EventIdentity& a, const EventIdentity& b) {
        return a.kind == b.kind && a.text == b.text && a.value == b.value && a.parse == b.parse;
    }
};

// The events that a parser is passing on, one inside of the other.
class PassingEvents {
public:
    // Calls pass(), unless the parser is passing the event on already. Among its handlers may be
    // other parsers, and among theirs this one: that would go round for ever. Throws
    // std::bad_alloc, and what pass() throws.
    template <typename Pass>
    void passOnce(const EventIdentity& event, Pass pass) {
        if (std::find(events_.begin(), events_.end(), event) != events_.end()) {
            return;
        }
        events_.push_back(event);
        const Leaving leaving{events_};
        pass();
    }

private:
    struct Leaving {
        std::vector<EventIdentity>& events;
        ~Leaving() { events.pop_back(); }
    };

    std::vector<EventIdentity> events_;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_PARSER_PASSING_EVENTS_H
