// args: one object an option, read through it.

#include <args.hxx>
#include <unordered_map>

#include "peer.h"
#include "peers/value_types.h"

namespace zarn_benchmarks {

namespace {

using Text = std::string;
using Choice = args::MapFlag<Text, Text>;
using Positional = args::PositionalList<Text>;

const std::unordered_map<Text, Text> choiceTexts = [] {
    std::unordered_map<Text, Text> texts;
    for (const char* choice : choices) {
        texts[choice] = choice;
    }
    return texts;
}();

// The class of the options whose values have this type.
template <typename Type>
struct OptionClass {
    using Flag = args::ValueFlag<Type>;
};
template <typename Item>
struct OptionClass<std::vector<Item>> {
    using Flag = args::ValueFlagList<Item>;
};
template <>
struct OptionClass<bool> {
    using Flag = args::Flag;
};
template <typename Type>
using FlagFor = typename OptionClass<std::decay_t<Type>>::Flag;

class ArgsSession final : public Session {
public:
    explicit ArgsSession(const Vocabulary& vocabulary) : Session(vocabulary), parser_("bench") {
        options_.reserve(vocabulary.options.size());
        for (const DeclaredOption& item : vocabulary.options) {
            declare(item);
        }
    }

    void parse(const CommandLine& line) override {
        if (!parser_.ParseCLI(line.argc(), line.argv())) {
            throw std::runtime_error("args refuses an argument");
        }
    }

    void read(std::size_t option, Checksum* sum) override {
        args::Base& found = *options_[option];
        if (item(option).positional) {
            sum->add(args::get(static_cast<Positional&>(found)));
        } else if (item(option).kind == Kind::choice) {
            sum->add(args::get(static_cast<Choice&>(found)));
        } else {
            withTypeOf(item(option), vocabulary_.multiValued, [&](const auto& empty) {
                sum->add(args::get(static_cast<FlagFor<decltype(empty)>&>(found)));
            });
        }
    }

    std::string help() override { return parser_.Help(); }

private:
    template <typename Option, typename... More>
    void add(const DeclaredOption& item, More&&... more) {
        options_.push_back(std::make_unique<Option>(
            parser_, item.name, item.description, std::forward<More>(more)...));
    }

    void declare(const DeclaredOption& item) {
        args::Matcher matcher{item.name};
        if (item.positional) {
            add<Positional>(item);
        } else if (item.kind == Kind::choice) {
            add<Choice>(item, std::move(matcher), choiceTexts);
        } else {
            withTypeOf(item, vocabulary_.multiValued, [&](const auto& empty) {
                add<FlagFor<decltype(empty)>>(item, std::move(matcher));
            });
        }
    }

    args::ArgumentParser parser_;
    std::vector<std::unique_ptr<args::Base>> options_;
};

}  // namespace

Peer argsPeer() { return makePeer<ArgsSession>("args", canHelp | canTakeMany | canBeCounted); }

}  // namespace zarn_benchmarks
