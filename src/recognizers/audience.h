// Who hears of a parse.

#ifndef ZARN_RECOGNIZERS_AUDIENCE_H
#define ZARN_RECOGNIZERS_AUDIENCE_H

#include "recognizers/handler_set.h"

namespace zarn_3_3::internal {

class FailureNote;

// Events go to the parser, which passes them on to the handlers registered there. While there are
// none it is not called: most parses are heard by nobody.
struct Audience {
    EventHandler& handler;
    const HandlerSet& registered;
    FailureNote& failure;  // for who asks afterwards

    bool isThere() const { return !registered.isEmpty(); }
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RECOGNIZERS_AUDIENCE_H
