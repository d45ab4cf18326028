// Plays scenarios while something goes wrong in one step, and judges what comes of it.
//
// The step gives its right answer or one that says what went wrong, and has done nothing by halves.
// Behind it everything is as if nothing had been wrong: what was not done is done again, and then
// every answer is the right one. Behind a parse that broke off stands the beginning of what it
// would have stored, and the same parser goes on with another result.

#ifndef ZARN_TESTS_DISTURBERS_DISTURBED_PLAY_H
#define ZARN_TESTS_DISTURBERS_DISTURBED_PLAY_H

#include <string>
#include <vector>

#include "support/failing_new.h"
#include "support/scenario.h"

namespace zarn_3_3::testing_support {

// For how long calls fail. Until the end of the scenario little is asked of the answers, but
// everything is destroyed under it.
enum class Lasts { once, untilEndOfStep, untilEndOfScenario };

// What goes wrong: calls of one kind, of which one fails, and perhaps all that follow.
struct Disturbance {
    Countdown& calls;
    Lasts lasts;

    // Whether a step may give this answer in the place of the right one.
    bool (*mayAnswer)(const std::string& verb, const std::string& found, const std::string& right);
};

// What is seen in an undisturbed play, and what else is known of it.
class Undisturbed {
public:
    explicit Undisturbed(const Scenario& scenario);

    struct Right {
        Answers answers;
        std::string before;  // of a declaration: what is declared, before it and behind it
        std::string after;
        std::vector<Words> stored;  // by a parse: of each name the occurrences
        std::string again;          // of the same parse, with a new result
    };

    std::vector<Step> steps;  // each of one operation
    std::vector<Right> rights;
    Words names;     // of the items
    Words ownNames;  // those that are no synonym as well

private:
    void addSteps(const Scenario& scenario);
    void playAll();
    void playUntil(std::size_t parse);  // for what it stores, and does again
};

// Lets the nth call fail. Says what does not hold of the answers, or of what is given back.
std::string disturb(const Undisturbed& undisturbed, const Disturbance& disturbance, long nth);

// Lets each call fail in its turn, or each of so many, in plays of their own, and counts them, up
// to the first of which something does not hold.
std::string disturbEach(const Undisturbed& undisturbed,
                        const Disturbance& disturbance,
                        long stride,
                        long& failures);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_DISTURBERS_DISTURBED_PLAY_H
