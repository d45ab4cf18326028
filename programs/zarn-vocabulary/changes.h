// What a comparison has found, and how it is printed.

#ifndef ZARN_VOCABULARY_CHANGES_H
#define ZARN_VOCABULARY_CHANGES_H

#include <set>
#include <string>
#include <vector>

namespace vocabulary {

enum class Severity {
    breaking,    // a command line that the old tool took fails now, or means something else
    compatible,  // something was gained
    text,        // parsing does not notice
};

struct Change {
    Severity severity;
    const char* id;
    std::string item;  // what it is about: the primary name of an item, mostly
    std::string what;
};

class Changes {
public:
    // `ignored`: ids, or "id:item". What is ignored leaves no trace.
    explicit Changes(std::set<std::string> ignored = {}) : ignored_(std::move(ignored)) {}

    void breaking(const char* id, const std::string& item, const std::string& what);
    void compatible(const char* id, const std::string& item, const std::string& what);
    void text(const char* id, const std::string& item, const std::string& what);

    const std::vector<Change>& all() const { return all_; }
    bool isBreaking() const;

    // One a line: all that breaks, then what is compatible, then texts.
    std::string report() const;

private:
    void add(const Change& change);

    std::set<std::string> ignored_;
    std::vector<Change> all_;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_CHANGES_H
