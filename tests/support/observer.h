// What is seen of the library, written down as answers.

#ifndef ZARN_TESTS_SUPPORT_OBSERVER_H
#define ZARN_TESTS_SUPPORT_OBSERVER_H

#include <functional>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>
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

// Control goes into the library and comes out of it, by calls and by events inside them. Whoever
// disturbs the library alone hears of each crossing.
struct Border {
    std::function<void(bool isInward)> crossed = [](bool) {};
};

// Crosses the border, and goes back when it ends.
class Crossing {
public:
    Crossing(const Border& crossed, bool inward) : border(crossed), isInward(inward) {
        border.crossed(isInward);
    }
    Crossing(const Crossing&) = delete;
    Crossing& operator=(const Crossing&) = delete;
    ~Crossing() { border.crossed(!isInward); }

private:
    const Border& border;
    bool isInward;
};

// Takes the place of a stream's buffer while it lives, and hands over each line that is written.
class CapturedLines final : private std::streambuf {
public:
    CapturedLines(std::ostream& captured,
                  const Border& crossed,
                  std::function<void(const std::string& line)> lineTaker)
        : border(crossed),
          take(std::move(lineTaker)),
          stream(captured),
          before(stream.rdbuf(this)) {}
    CapturedLines(const CapturedLines&) = delete;
    CapturedLines& operator=(const CapturedLines&) = delete;
    ~CapturedLines() override { stream.rdbuf(before); }

    void finish();  // hands over what stands in a line without an end

private:
    int_type overflow(int_type character) override;

    const Border& border;
    std::function<void(const std::string& line)> take;
    std::ostream& stream;
    std::streambuf* before;
    std::string line;
};

// Whether what is written to the console is observed; only one observer at a time may do so.
enum class Console { observed, untouched };

class Observer {
public:
    Observer(const Border& border, Console console);

    void say(Kind kind, const std::string& text);
    void sayLines(const std::string& text);  // an outcome of several lines
    void finishLines();

    int line = 0;  // of the step that is done
    Answers answers;

private:
    std::optional<CapturedLines> log;
    std::optional<CapturedLines> warnings;
};

// `text` with escapes, so that it is one line of readable characters.
std::string escaped(const std::string& text);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_OBSERVER_H
