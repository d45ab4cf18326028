// What the tool says: results on the standard output, problems on the error stream.

#ifndef ZARN_CHECKSUMS_CONSOLE_H
#define ZARN_CHECKSUMS_CONSOLE_H

#include <optional>
#include <string>

namespace checksums {

// "checksums: message". Control characters are shown as \xNN, so that no argument or file name
// that is quoted can command the terminal.
void printError(const std::string& message);

enum class Mark { good, bad, notice };

// The results of an action.
class Results {
public:
    // Colour: as wished, else when the standard output is a terminal. With `quiet` neither good
    // results nor summaries are shown.
    Results(std::optional<bool> color, bool quiet);

    // "name: verdict". The name is escaped as in manifests.
    void print(const std::string& name, const char* verdict, Mark mark) const;
    void printSummary(const std::string& summary) const;

private:
    bool hasColor;
    bool isQuiet;
};

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_CONSOLE_H
