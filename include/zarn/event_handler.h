// What a tool hears while its command line is parsed.

#ifndef ZARN_EVENT_HANDLER_H
#define ZARN_EVENT_HANDLER_H

#include "zarn/export.h"

namespace zarn_3_3 {

struct Value;

// Receives every option and value of a parse, in command-line order.
//
// Derive from it, override what you want to hear, and register the object with
// IParser::addHandler. Every operation has a default that lets the parse go on.
//
// Ownership: the parser keeps a plain pointer. The handler must outlive its registration; it is
// never deleted through this class.
//
// Calls: on the thread that parses, from inside the parsing call. With several handlers, the one
// at the lower address is called first. A handler may query results, declare options, parse again,
// and add or remove handlers (itself too) from inside a call; it must not destroy the parser or
// the result that is being filled.
//
// Exceptions: one that derives from std::exception ends the parse with resultException; any other
// leaves the parsing call. In both cases the parser stays usable.
//
// The order of the operations is part of the binary interface: add new ones to a new class.
class ZARN_EXPORT EventHandler {
public:
    // An option was recognised. `name` is its primary name, without dashes, and stays valid until
    // the parser is destroyed. The answer is ignored.
    //
    // For a positional argument `name` is the primary name of the item that was declared first of
    // all, positional or not. The value that follows has the positional item's own name.
    virtual bool onOptionParse(const char* name);

    // A value was converted and found valid for the option `name`, which stays valid until the
    // parser is destroyed.
    //
    // `value.text` is valid during the call only: copy what you keep.
    //
    // Answer false to refuse the value. Nothing of this occurrence is then stored, no further
    // handler is asked, and the parse ends with resultVetoed. Of "--include=a,b" each value is
    // announced alone: when b is refused, a has been announced already.
    virtual bool onValueParse(const char* name, const Value& value);

    // Nothing declared takes `argument`, which stays valid until the parser is destroyed.
    //
    // Answer false to take care of it yourself. It is then skipped, also where unknown arguments
    // are errors (flagUnknownIsError). All handlers are asked, whatever the others answered.
    virtual bool onUknownArgument(const char* argument);

protected:
    ~EventHandler() = default;
};

}  // namespace zarn_3_3

#endif  // ZARN_EVENT_HANDLER_H
