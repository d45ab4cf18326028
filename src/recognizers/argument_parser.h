// The base of the recognisers.

#ifndef ZARN_RECOGNIZERS_ARGUMENT_PARSER_H
#define ZARN_RECOGNIZERS_ARGUMENT_PARSER_H

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_source.h"
#include "recognizers/handler_set.h"
#include "text/text_locale.h"

namespace zarn_3_3 {

class EventHandler;
class IResultCollector;
struct OptionData;
struct OptionValue;

// Takes arguments from the front of an argument vector.
//
// `handler` hears of every option and value; it is not called while it has no listeners. An
// occurrence is bound to its item as it was when it was recognised, and only the item declared last
// can change: of that one a copy is taken when client code may run meanwhile. Others are used where
// they stand. `rest` holds what stands behind the argument vectors that are parsed.
class IArgumentParser {
public:
    IArgumentParser(EventHandler& eventHandler,
                    const internal::HandlerSet& whoListens,
                    int creationFlags,
                    internal::ArgumentSource& rest);
    IArgumentParser(const IArgumentParser&) = delete;
    IArgumentParser& operator=(const IArgumentParser&) = delete;
    virtual ~IArgumentParser();

    // Whether `parse` can take the argument in front: 0 for yes. Changes nothing in `args`.
    virtual int recognize(std::vector<std::string>& args,
                          RegisteredOptionStorage& registry,
                          std::string& error) = 0;

    // Takes what `recognize` has just accepted: stores it through `collector` and removes it from
    // the front of `args`. 0, or the code of a failure with its text in `error`; what failed then
    // still stands in front. `optionIndex` receives the index of the item that was matched.
    virtual int parse(std::vector<std::string>& args,
                      IResultCollector* collector,
                      RegisteredOptionStorage& registry,
                      std::size_t& optionIndex,
                      std::string& error) = 0;

    // What is put behind a message to name the argument that it is about.
    virtual std::string formatTokenMessage(std::string& token);

    // Of several recognisers that accept an argument the one with the highest priority parses it.
    virtual int getPriority() = 0;

    // The next number of the sequence that orders what is stored.
    static std::atomic<int>& m_idx;

protected:
    // Binds `value`, which may be empty for an occurrence without one, to `option`: cuts, checks
    // and announces it, and stores the occurrence. 0; 1 when a handler refused a value; 2 when a
    // value is wrong.
    int parseValueAndAddOption(std::string_view value,
                               std::string& error,
                               const OptionDescription& option,
                               std::vector<std::string>& args,
                               IResultCollector* collector);

    // Logs `error` and gives the code of a broken rule.
    int refuse(const std::string& error) const;

    void removeFront(std::vector<std::string>& args);

    bool isHeard() const { return !listeners.isEmpty(); }

    // Whether client code runs with every step: in a handler, or in a stream under the log.
    bool isObserved() const { return isHeard() || internal::isLogOn(); }

    // To be called before an item, the one with this index, is bound. Client code may run
    // meanwhile, in a stream to which a warning about a deprecated value is written if nowhere
    // else: then the arguments are made safe from it, and the answer is whether it could change the
    // item too.
    bool mayChange(const OptionDescription& option,
                   std::size_t index,
                   const RegisteredOptionStorage& registry) {
        if (!isObserved() && option.deprecatedValues.empty()) {
            return false;
        }
        source.secure();
        return registry.isOpen(index);
    }

    // Asked once unless client code runs meanwhile, which may set another locale.
    internal::TextLocale textLocale() const {
        return isObserved() ? internal::globalTextLocale() : initialLocale;
    }

    EventHandler& handler;
    const internal::HandlerSet& listeners;
    std::string_view name = "UndefinedParser";  // in front of every line of the log
    int flags;
    internal::ArgumentSource& source;

private:
    struct Binding;

    internal::TextLocale initialLocale = internal::globalTextLocale();

    // Of the occurrence in progress; kept for the next one, which then allocates nothing.
    std::unique_ptr<OptionData> data;

    int bindPieces(const Binding& binding, char separator);
    int bindPiece(const Binding& binding, std::string_view piece);
    int announce(const Binding& binding, const OptionValue& value);
};

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_ARGUMENT_PARSER_H
