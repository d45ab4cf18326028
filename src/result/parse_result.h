// The one result of a parse: what is stored, and the walk through it.

#ifndef ZARN_RESULT_PARSE_RESULT_H
#define ZARN_RESULT_PARSE_RESULT_H

#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "options/option_list.h"
#include "result/result_collector.h"
#include "result/stored_option.h"
#include "text/kept_texts.h"
#include "text/text_arena.h"
#include "zarn/result.h"

namespace zarn_3_3 {

struct OptionData;

// Holds one entry for each name that was stored: an option with synonyms has one under each of its
// names.
//
// Cursors are positions, not iterators: whoever walks may store meanwhile, and then sees what was
// added.
class ParseResult final : public IParseResult, public IResultCollector {
public:
    ParseResult() = default;
    ParseResult(const ParseResult&) = delete;
    ParseResult& operator=(const ParseResult&) = delete;

    void destroy() override;
    bool present(const char* name, int from, int to) override;
    Value get(const char* name, int from, int to) override;
    Value next(const char* name) override;
    int nextPosition() override;
    int getFirstArgument(const char** out) override;
    int getNextArgument(const char** out) override;

    ~ParseResult() override = default;

    int store(const OptionDescription& option, OptionData& data) override;

    // Records the default of every item that has one under each of its names. Throws what drawing a
    // number and memory throw; what was recorded by then stays.
    void applyDefault(const OptionList& options);

    // Keeps an argument that is not parsed, under the next number of the sequence.
    void storeArgument(std::string_view argument);

    // What is stored while one of these lives comes from an option file. Its constructor throws
    // std::bad_alloc.
    class FromFile {
    public:
        explicit FromFile(ParseResult& result);
        FromFile(const FromFile&) = delete;
        FromFile& operator=(const FromFile&) = delete;
        ~FromFile();

    private:
        ParseResult& result_;
        std::size_t index_;
    };

    // Whether the number was drawn for a line of an option file.
    bool isFromFile(int position) const;

    // The entry of a name, or null.
    const internal::StoredOption* find(std::string_view name) const;

    // All entries, in the order in which their names were first stored.
    const std::vector<internal::StoredOption>& entries() const { return options; }

private:
    static constexpr int lastPosition = std::numeric_limits<int>::max();
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    enum class Wanted { presence, value };

    std::size_t findIndex(std::string_view name) const;
    std::size_t findStored(std::string_view name);
    internal::StoredOption& findOrAdd(std::string_view name);
    void replace(std::string_view name, OptionData& data, bool isGivenAway);
    const char* keptDefault(const OptionDescription& item);

    const internal::StoredOption* selected() const;
    Value select(const char* name, int from, int to, Wanted wanted);
    Value step(const internal::StoredOption& entry);
    Value stepOccurrence(const internal::StoredOption& entry);
    Value stepValue(const internal::StoredOption& entry);

    internal::KeptTexts names_;
    std::vector<internal::StoredOption> options;  // by the number of the name
    internal::TextArena texts_;
    std::size_t lastStored_ = none;  // the entry that the last store found

    std::size_t current = none;      // the entry that the last query selected
    std::size_t valueCursor = 0;     // in its values
    std::size_t positionCursor = 0;  // in its positions
    int rangeFrom = 0;
    int rangeTo = lastPosition;

    std::vector<const char*> arguments;  // kept aside behind the terminator
    std::size_t argumentCursor = none;

    // The numbers drawn for lines of option files: from the first to before the second.
    std::vector<std::pair<int, int>> fileNumbers_;

    // What a clash of synonyms replaced: its texts may have been handed out.
    std::vector<std::vector<internal::PlacedValue>> replaced_;
};

}  // namespace zarn_3_3

#endif  // ZARN_RESULT_PARSE_RESULT_H
