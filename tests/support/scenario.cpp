#include "support/scenario.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace zarn_3_3::testing_support {
namespace {

[[noreturn]] void refuse(int line, const std::string& why) {
    throw std::invalid_argument(std::to_string(line) + ": " + why);
}

char escapedAt(std::istream& text, int line) {
    const std::string names = "nrt\"\\";
    const char name = static_cast<char>(text.get());
    const std::size_t found = names.find(name);
    if (found != std::string::npos) {
        return "\n\r\t\"\\"[found];
    }
    std::string digits(2, '\0');
    text.read(digits.data(), 2);
    char* end = nullptr;
    const long byte = std::strtol(digits.c_str(), &end, 16);
    if (name != 'x' || end != digits.c_str() + 2) {
        refuse(line, "unknown escape");
    }
    return static_cast<char>(byte);
}

Words wordsOf(const std::string& lineText, int line) {
    std::istringstream text(lineText);
    Words words;
    while (text >> std::ws && text.peek() != EOF) {
        std::string& word = words.emplace_back();
        bool isQuoted = false;
        for (char c = 0; text.get(c) && (isQuoted || c != ' ');) {
            if (c == '"') {
                isQuoted = !isQuoted;
            } else {
                word += c == '\\' ? escapedAt(text, line) : c;
            }
        }
        if (isQuoted) {
            refuse(line, "a quote without an end");
        }
    }
    return words;
}

class Reader {
public:
    void read(const std::string& text, int line) {
        if (text.empty() || text[0] == '#') {
            return;
        }
        if (text[0] == '>') {
            expect(text.substr(std::min<std::size_t>(2, text.size())), line);
        } else if (startsWith(text, "scenario ")) {
            scenarios.push_back({text.substr(9), line, {}, {}});
            steps = &scenarios.back().steps;
        } else {
            add(readStep(text, line));
        }
    }

    std::vector<Scenario> scenarios;

private:
    void expect(const std::string& answer, int line) {
        if (scenarios.empty() || scenarios.back().steps.empty()) {
            refuse(line, "an answer to nothing");
        }
        scenarios.back().expected.push_back(
            {scenarios.back().steps.back().line, Kind::outcome, answer});
    }

    void add(Step step) {
        if (step.verb == "vocabulary" && step.words.size() == 1) {
            steps = &vocabularies[step.words[0]];
            return;
        }
        if (steps == nullptr) {
            refuse(step.line, "a step outside of scenarios");
        }
        const std::string like = step.verb == "parser" ? settingOf(step.words, "like", "") : "";
        steps->push_back(step);
        if (!like.empty() && vocabularies.count(like) == 0) {
            refuse(step.line, "unknown vocabulary");
        }
        for (Step declaration : like.empty() ? std::vector<Step>() : vocabularies[like]) {
            declaration.line = step.line;
            steps->push_back(std::move(declaration));
        }
    }

    std::map<std::string, std::vector<Step>> vocabularies;
    std::vector<Step>* steps = nullptr;
};

template <typename Take>
void forEachLine(const std::string& text, Take take) {
    std::istringstream lines(text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        take(line, ++number);
    }
}

}  // namespace

std::string settingOf(const Words& words, const std::string& key, const std::string& otherwise) {
    for (const std::string& word : words) {
        if (startsWith(word, key + "=")) {
            return word.substr(key.size() + 1);
        }
    }
    return otherwise;
}

bool isParse(const Step& step) {
    return isAmong(step.verb, {"args", "argv", "text", "vector", "phaseOne"});
}

bool isHelp(const std::string& verb) {
    return isAmong(verb, {"help", "topic", "modifiers", "globals"});
}

bool mayThrow(const std::string& verb) {
    return isAmong(verb, {"vector", "phaseOne", "phaseTwo", "wrap"});
}

bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

bool isAmong(const std::string& word, std::initializer_list<const char*> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool hasStep(const Scenario& scenario, std::initializer_list<const char*> verbs) {
    return std::any_of(scenario.steps.begin(), scenario.steps.end(), [&verbs](const Step& step) {
        return isAmong(step.verb, verbs);
    });
}

std::vector<Scenario> readScenarios(const std::string& text) {
    Reader reader;
    forEachLine(text, [&](const std::string& line, int number) { reader.read(line, number); });
    return std::move(reader.scenarios);
}

Step readStep(const std::string& text, int line) {
    Words words = wordsOf(text, line);
    if (words.empty()) {
        refuse(line, "blanks alone");
    }
    std::string verb = std::move(words.front());
    words.erase(words.begin());
    return {line, std::move(verb), std::move(words)};
}

std::string withAnswers(const std::string& text, const Answers& answers) {
    std::string renewed;
    forEachLine(text, [&](const std::string& line, int number) {
        if (line.empty() || line[0] != '>') {
            renewed += line + "\n";
        }
        for (const Answer& answer : answers) {
            if (answer.line == number) {
                renewed += answer.text.empty() ? ">\n" : "> " + answer.text + "\n";
            }
        }
    });
    return renewed;
}

}  // namespace zarn_3_3::testing_support
