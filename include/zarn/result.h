// What a parse found, read by name and by ranges of a running sequence number.

#ifndef ZARN_RESULT_H
#define ZARN_RESULT_H

#include "zarn/export.h"
#include "zarn/value.h"

namespace zarn_3_3 {

// The end of every range: no number is as large. Queries from 0 to here select everything.
inline constexpr int lineEnd = 2147483647;

// The result of one parse, or of several into the same object, which then accumulates.
//
// Everything found has a number, in the order of the command line: each occurrence of an option,
// then each of its values, and each plain argument. Defaults have the numbers in front of them. The
// numbers begin at 1 and go on from parse to parse, for as long as the process runs. Queries take a
// range of numbers. The first command line of a process, without defaults,
//
//     tool --include=a,b -v --include=c
//
// is numbered
//
//     1 --include   2 a   3 b   4 -v   5 --include   6 c
//
// and asked for "include",
//
//     get(name, 0, lineEnd), then next(name)   give a, b and c;
//     get(name, 1, 5), then next(name)         give a and b: the second --include is left out;
//     get(name, 2, 5)                          finds nothing: no --include has a number from 2
//     to 4.
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

    // Whether the option was given with a number p, from <= p < to. For one that was not given:
    // whether it has a default, whatever the range. `name` is any of its names, whole and without
    // dashes; null is not found.
    //
    // Begins a walk. Where only the default is there, one following next delivers it.
    virtual bool present(const char* name, int from, int to) = 0;

    // The first value of the option in the range, with statusFound. Begins a walk.
    //
    // Both bounds of the range are asked of different numbers:
    //   the option    must have been given with a number p, from <= p < to;
    //   the value     is the first with a number v, from <= v <= to. The upper bound counts in.
    // In the example above get(name, 1, 6) and next(name) therefore reach c, which has number 6.
    //
    // An option that was not given answers with its default, whatever the range. A switch answers
    // with the number of its first occurrence in the range, and no text.
    //
    // statusNotFound: not given in the range, or not known; statusException: a standard exception
    // inside.
    virtual Value get(const char* name, int from, int to) = 0;

    // The next value of the option that the last get or present selected, in the range given there.
    // `name` is not looked at and may be null. For a switch: its next occurrence, whatever the
    // range.
    //
    // statusNotFound: no further value in the range; statusException: a standard exception inside.
    virtual Value next(const char* name) = 0;

    // The number of the next occurrence of the selected option, whatever the range: lineEnd when
    // there is none, or nothing is selected. It does not move what next delivers, but for switches,
    // where both move the same cursor.
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

// The last value of the option in the range, walked with `get` and `next` of `result`: of options
// that may be repeated, where the last one counts. Begins a new walk.
//
// statusNotFound: there is none, or `result` or `name` is null (nothing is then called).
ZARN_EXPORT Value getLastValue(IParseResult* result, const char* name, int from, int to);

}  // namespace zarn_3_3

#endif  // ZARN_RESULT_H
