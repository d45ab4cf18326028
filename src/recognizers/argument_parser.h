// The base of the recognisers.

#ifndef ZARN_RECOGNIZERS_ARGUMENT_PARSER_H
#define ZARN_RECOGNIZERS_ARGUMENT_PARSER_H

#include <atomic>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "interface/shared_texts.h"
#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "recognizers/arguments.h"
#include "recognizers/audience.h"
#include "result/option_data.h"
#include "text/text_locale.h"

namespace zarn_3_3 {

class IResultCollector;

namespace internal {

// What the recognisers of a parse share.
struct Binding {
    OptionData occurrence;       // in progress; kept for the next one, which then allocates nothing
    plinth2::SharedTexts texts;  // of values, in a series for each item
};

}  // namespace internal

// Takes arguments from the front of those that it was made for. The vector `args`, with which the
// driver calls, is their window: the argument in front is `args[0]`.
//
// An occurrence is bound to its item as it was when it was recognised, and only the item declared
// last can change: of that one a copy is taken when client code may run meanwhile. Others are used
// where they stand.
class IArgumentParser {
public:
    // `component` stands in front of every line of the log.
    IArgumentParser(std::string_view component,
                    const internal::Audience& audience,
                    internal::Arguments& arguments,
                    internal::Binding& binding)
        : name(component), audience_(audience), arguments_(arguments), binding_(binding) {}
    IArgumentParser(const IArgumentParser&) = delete;
    IArgumentParser& operator=(const IArgumentParser&) = delete;
    virtual ~IArgumentParser() = default;

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
                      std::string& error);

    // What is put behind a message to name the argument that it is about.
    virtual std::string formatTokenMessage(std::string& token);

    // Of several recognisers that accept an argument the one with the highest priority parses it.
    virtual int getPriority() = 0;

    // The next number of the sequence that orders what is stored.
    static std::atomic<int>& m_idx;

protected:
    // What recognize answers.
    static constexpr int recognized = 0;
    static constexpr int declined = 1;

    // Binds `value`, which may be empty for an occurrence without one, to `option`: cuts, checks
    // and announces it, and stores the occurrence. 0; 1 when a handler refused a value; 2 when a
    // value is wrong.
    int parseValueAndAddOption(std::string_view value,
                               std::string& error,
                               const OptionDescription& option,
                               IResultCollector* collector);

    // What is left of that for one text that is known to be a value, and of which nobody hears.
    [[gnu::noinline]] void storeText(std::string_view text,
                                     const OptionDescription& option,
                                     IResultCollector& collector);

    // Logs why the argument in front is refused, and makes it the error. `value`: what is wrong, or
    // empty.
    [[gnu::cold]] int refuse(DiagnosticKind kind,
                             const OptionDescription& option,
                             std::string_view value,
                             std::string reason,
                             std::string& error) const;

    // Notes that the argument in front is wrong.
    [[gnu::cold]] void noteFront(DiagnosticKind kind,
                                 std::string_view option,
                                 std::string_view value) const;

    void take();

    // Whether client code runs with every step: in a handler, or in a stream under the log.
    bool isObserved() const { return audience_.isThere() || internal::isLogOn(); }

    // Asked once unless client code runs meanwhile, which may set another locale.
    internal::TextLocale textLocale() const {
        return isObserved() ? internal::globalTextLocale() : initialLocale_;
    }

    std::string_view name;
    const internal::Audience audience_;
    internal::Arguments& arguments_;

private:
    // The two halves of `parse`. The first says which item it is, or what is wrong about the
    // argument, and null then; the second stores what was given of it.
    virtual const OptionDescription* match(RegisteredOptionStorage& registry,
                                           std::size_t& optionIndex,
                                           std::string& error) = 0;
    virtual int bind(const OptionDescription& option,
                     IResultCollector* collector,
                     std::string& error) = 0;

    bool mayChange(const OptionDescription& option,
                   std::size_t index,
                   const RegisteredOptionStorage& registry);
    // Kept out of the way of those parses, by far the most, that need no copy.
    [[gnu::noinline]] int bindCopy(const OptionDescription& option,
                                   IResultCollector* collector,
                                   std::string& error);
    int bindPieces(std::string_view value, const OptionDescription& option, std::string& error);
    int bindPiece(std::string_view piece,
                  std::string_view value,
                  const OptionDescription& option,
                  std::string& error);
    [[gnu::cold]] void note(DiagnosticKind kind,
                            std::string_view option,
                            std::string_view value) const;
    bool isWelcome(const OptionValue& value, const std::string& option) const;

    internal::TextLocale initialLocale_ = internal::globalTextLocale();
    internal::Binding& binding_;
};

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_ARGUMENT_PARSER_H
