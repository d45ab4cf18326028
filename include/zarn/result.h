// What a parse found, read by name and by ranges of a running sequence number.

#ifndef ZARN_RESULT_H
#define ZARN_RESULT_H

#include "zarn/export.h"
#include "zarn/value.h"

namespace zarn_3_3 {

// The result of one parse, or of several into the same object, which then accumulates.
//
// Every occurrence of an option, every value, every applied default and every plain argument has
// its number in one sequence that runs over the whole command line and is never reset within a
// process; it begins at 1. Queries take a range of these numbers: 0 and 2147483647 (INT_MAX)
// select everything.
//
// Ownership: made by IParser::createResult, freed with destroy, never with delete. A result does
// not refer to its parser and may outlive it. Every text that it hands out is valid, at the same
// address, until it is destroyed.
//
// Walks: a result holds one walk at a time. get and present begin a new one, next and nextPosition
// go on with it, whatever is stored in between. A result belongs to one thread at a time.
//
// Exceptions: none leaves these operations; a standard one inside gives statusException.
//
// The order of the operations is part of the binary interface.
class ZARN_EXPORT IParseResult {
public:
    // Frees the result and every text that it handed out.
    virtual void destroy() = 0;

    // Whether the option was given with a number p, from <= p < to, or was not given but has a
    // default (whatever the range). `name` is any of its names, whole and without dashes; null is
    // not found.
    //
    // For an option that has only its default, one following next delivers that default.
    virtual bool present(const char* name, int from, int to) = 0;

    // The first value of the option in the range, as a Value with statusFound. An option that was
    // not given answers with its default, whatever the range; a switch with the number of its first
    // occurrence and no text.
    //
    // The option must have been given with a number p, from <= p < to; the value delivered is the
    // first with from <= number <= to. Both bounds are as they are: the upper one is not counted
    // in for occurrences, and is for values.
    //
    // statusNotFound: not given in the range, or not known; statusException: a standard exception
    // inside.
    virtual Value get(const char* name, int from, int to) = 0;

    // The next value of the option that the last get or present selected; `name` is not looked at
    // and may be null. For a switch: its next occurrence, whatever the range.
    //
    // statusNotFound: no further value in the range; statusException: a standard exception inside.
    virtual Value next(const char* name) = 0;

    // The number of the next occurrence of the selected option, whatever the range: 2147483647 when
    // there is none, or nothing is selected. Independent of next, but for switches, where both move
    // the same cursor.
    virtual int nextPosition() = 0;

    // The first, and the next, of the arguments that stood behind the terminator "--".
    //
    // statusFound: `*out` points to it. statusNotFound: there is none, `*out` is unchanged; also
    // for getNextArgument before getFirstArgument. statusException: `out` is null, or a standard
    // exception inside; the cursor has not moved.
    virtual int getFirstArgument(const char** out) = 0;
    virtual int getNextArgument(const char** out) = 0;

protected:
    virtual ~IParseResult() = default;
};

// The last value of the option in the range, walked with `get` and `next` of `result`;
// statusNotFound when there is none, or when `result` or `name` is null (nothing is then called).
// It begins a new walk.
ZARN_EXPORT Value getLastValue(IParseResult* result, const char* name, int from, int to);

}  // namespace zarn_3_3

#endif  // ZARN_RESULT_H
