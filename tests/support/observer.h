// What is seen of the library, written down as answers.

#ifndef ZARN_TESTS_SUPPORT_OBSERVER_H
#define ZARN_TESTS_SUPPORT_OBSERVER_H

#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

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
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void say(Kind kind, const std::string& text);
    void sayLines(const std::string& text);  // an outcome of several lines
    void finishStep();                       // what was written without a line feed

    std::function<void(const std::string& event)> react;  // to lines of the console
    int line = 0;                                         // of the step that is done
    Answers answers;

private:
    // Takes the place of a stream's buffer while it lives. When what it brings about throws, the
    // stream is bad until the end of the step.
    class Tap final : private std::streambuf {
    public:
        Tap(Observer& byWhom, Kind ofWhat, std::ostream& tapped);
        Tap(const Tap&) = delete;
        Tap& operator=(const Tap&) = delete;
        ~Tap() override;

    private:
        int_type overflow(int_type character) override;

        Observer& observer;
        const Kind kind;
        std::ostream& stream;
        std::streambuf* const before;
    };

    void hear(Kind kind, char c);

    std::map<Kind, std::string> begun;  // lines of the console
    std::optional<Tap> log;
    std::optional<Tap> warnings;
};

// `text` with escapes, so that it is one line of readable characters.
std::string escaped(const std::string& text);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_OBSERVER_H
