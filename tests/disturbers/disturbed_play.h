// Plays scenarios while something goes wrong in one step, and judges what comes of it.
//
// The step gives its right answer or one that says what went wrong, and has done nothing by halves.
// Behind it everything is as if nothing had been wrong: what was not done is done again, and then
// every answer is the right one. Behind a parse that broke off stands the beginning of what it
// would have stored, and the same parser goes on with another result.

#ifndef ZARN_TESTS_DISTURBERS_DISTURBED_PLAY_H
#define ZARN_TESTS_DISTURBERS_DISTURBED_PLAY_H

#include <map>
#include <string>
#include <vector>

#include "support/scenario.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {

// Calls of one kind, of which one fails, and perhaps all that follow.
class Disturbance {
public:
    virtual ~Disturbance() = default;

    virtual void begin(long nth) = 0;         // the n-th call from now on fails first
    virtual void cross(bool /*isInward*/) {}  // the border of the library
    virtual bool hasStruck() const = 0;
    virtual void end() = 0;               // everything works again
    virtual long leftBehind() const = 0;  // what was taken since the beginning, and not given back

    // Whether a step may give this answer in the place of the right one.
    virtual bool mayAnswer(const std::string& verb,
                           const std::string& found,
                           const std::string& right) const = 0;
};

// What is seen in an undisturbed play, and what else is known of it.
class Undisturbed {
public:
    explicit Undisturbed(const Scenario& scenario);

    struct Right {
        Answers answers;
        std::string before;  // of a declaration: what is declared, before it and behind it
        std::string after;
        std::map<std::string, Words> stored;  // by a parse: of each name the occurrences
        Answers again;                        // of the same parse, with a new result
    };

    std::vector<Step> steps;  // each of one operation
    std::vector<Right> rights;
    Words names;     // of the items
    Words ownNames;  // those that are no synonym as well
};

enum class Until { endOfStep, endOfScenario };

// Lets each call fail in its turn, or each of so many, in plays of their own, and counts them. Says
// what does not hold of the answers. When the disturbance lasts until the end of the scenario,
// little is asked of them, but everything is destroyed under it.
std::string disturbEach(const Undisturbed& undisturbed,
                        Disturbance& disturbance,
                        Until until,
                        long stride,
                        long& failures);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_DISTURBERS_DISTURBED_PLAY_H
