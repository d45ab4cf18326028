// Where scenarios are played: does one step after the other on the public interface, and writes
// down what is seen.

#ifndef ZARN_TESTS_SUPPORT_STAGE_H
#define ZARN_TESTS_SUPPORT_STAGE_H

#include <array>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/failing_new.h"
#include "support/grouping_locale.h"
#include "support/observer.h"
#include "support/restored.h"
#include "support/scenario.h"
#include "support/values.h"
#include "zarn/zarn.h"

namespace zarn_3_3::testing_support {

// Texts for one parse, each in a block of its own size.
class LentTexts {
public:
    const char* lend(const std::string& word);
    void takeBack();  // what was lent is scribbled over and freed

    std::vector<const char*> argv;

private:
    std::vector<std::pair<std::unique_ptr<char[]>, std::size_t>> blocks;
};

// What clients throw that is no standard exception.
struct ForeignException {};

class Stage;

// Tells the stage what it hears, and does what it was told to do then.
class ActingHandler final : public EventHandler {
public:
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const Value& value) override;
    bool onUknownArgument(const char* argument) override;

    // From now on `step` is done inside the `nth` such event, 0: inside each of them. Lines of the
    // console are events too, "log TEXT" and "warning TEXT", although nobody hears them.
    void plan(long nth, const std::string& event, const Step& step);

    void react(const std::string& event);

    Stage* stage = nullptr;
    std::string name;

private:
    struct Plan {
        long nth;
        std::string event;
        Step step;
        long heard = 0;
        bool isInProgress = false;
    };

    bool hear(const char* kind, const char* text, const Value* value);
    void act(Plan& plan, const std::string& event);

    std::list<Plan> plans;  // more may come while one is in progress
};

// The item that was declared last, which can still be changed.
struct LastItem {
    IOption* item = nullptr;
    das_variant_type_t type = vtNull;
};

// Ways to do the same: heard by one more, who says nothing of it; with command lines as texts, an
// argument in each line, as far as lines can hold them; as such texts behind an empty option file,
// and in one.
enum class Way { plain, heard, asText, behindFile, asFile };

// A world without parsers and files: each stage begins anew, and leaves the running number as it
// was. Memory that runs out does so in the library alone, but not while it makes values.
class Stage {
    const Restored<bool> spared{memory.isSpared, true};

public:
    explicit Stage(Console console = Console::observed, Way way = Way::plain);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    // Throws BadStep when the step is none that can be done.
    void perform(const Step& step);

    Observer observer;

    // For the deeds and handlers behind it:

    // The one way into the library.
    template <typename Operation, typename... Arguments>
    static decltype(auto) call(Operation&& operation, Arguments&&... arguments) {
        const Restored inside(memory.isSpared, false);
        return std::invoke(std::forward<Operation>(operation),
                           std::forward<Arguments>(arguments)...);
    }

    void tell(const std::string& text) { observer.say(Kind::outcome, text); }
    void tellUnless(bool isDone) { isDone ? void() : tell("no"); }
    void act(const Step& step);  // inside an event, where it may throw

    // Texts that are handed out are to stay as they are until their owner is destroyed.
    const char* keep(const void* owner, const char* text);

    // Numbers count from the first that the scenario draws; "end" is the greatest of all.
    void beginNumbers(int first);
    int number(const std::string& place) const;
    std::string place(int number) const;
    std::string shown(const Value& value) const;  // "text@number", or "text(kind:value)@number"

    // Of the parsers or the results.
    template <typename Object>
    void destroy(std::map<std::string, Object*>& all, const std::string& name, Object*& used) {
        const auto node = all.extract(name);
        if (!node.empty()) {
            Object* const destroyed = node.mapped();
            forget(destroyed);
            used = used == destroyed ? nullptr : used;
            call(&Object::destroy, destroyed);
        }
    }

    const Way way;
    ActingHandler listener;  // of all parsers, in some ways
    bool isComparable = true;
    int filesNamed = 0;  // as the listener hears
    std::vector<int> numbers;

    std::map<std::string, IParser*> parsers;
    std::map<std::string, IParseResult*> results;
    IParser* parser = nullptr;  // in use
    IParseResult* result = nullptr;
    LentTexts* lent = nullptr;  // to the parse in progress
    bool isRefused = false;     // the event in progress
    bool hasSigns = false;      // the log

    std::array<ActingHandler, 10> handlers;
    LastItem last;
    Words names;  // that were declared
    ValueMaker values;
    std::optional<GroupingLocale> locale;

private:
    struct KeptText {
        const void* owner;
        const char* pointer;
        std::string text;
    };

    void checkKept();
    void forget(const void* owner);

    std::vector<KeptText> kept;
    const int numberBefore;
    int base;
};

// What a verb does. A step that needs what is not there says so instead.
enum class Needs { nothing, parser, result };
struct Deed {
    Needs needs;
    void (*act)(Stage& stage, const Step& step);
};
using Deeds = std::map<std::string, Deed>;

Deeds declaringDeeds();
Deeds parsingDeeds();
Deeds readingDeeds();

// The word of this index, or a BadStep.
const std::string& wordOf(const Step& step, std::size_t index);

// The words from `begin` to `end`.
std::string joined(const Words& words, std::size_t begin, std::size_t end, char separator);

// On a stage of its own.
Answers play(const Scenario& scenario);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_STAGE_H
