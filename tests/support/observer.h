// What is seen of the library, written down as answers.

#ifndef ZARN_TESTS_SUPPORT_OBSERVER_H
#define ZARN_TESTS_SUPPORT_OBSERVER_H

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/captured_stream.h"

namespace zarn_3_3::testing_support {

enum class Kind { event, log, warning, assertion, outcome };

// One line, without "> " and with \xHH for bytes that are not to be read.
struct Answer {
    int line;  // of the step that gave it
    Kind kind;
    std::string text;
};

using Answers = std::vector<Answer>;

// Whether what is written to the console is observed; only one observer at a time may do so.
enum class Console { observed, untouched };

class Observer {
public:
    explicit Observer(Console console);

    void say(Kind kind, const std::string& text);
    void sayLines(const std::string& text);  // an outcome of several lines
    void finishLines();                      // what was written without a line feed

    int line = 0;  // of the step that is done
    Answers answers;

private:
    void hear(Kind kind, char c);

    std::map<Kind, std::string> begun;  // lines of the console
    std::optional<TappedStream> log;
    std::optional<TappedStream> warnings;
};

// `text` with escapes, so that it is one line of readable characters.
std::string escaped(const std::string& text);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_OBSERVER_H
