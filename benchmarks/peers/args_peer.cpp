// args: one object an option, read through it.

#include <args.hxx>
#include <sstream>
#include <unordered_map>

#include "peer.h"
#include "peers/value_lists.h"

namespace zarn_benchmarks {

namespace {

using Text = std::string;
using ChoiceFlag = args::MapFlag<Text, Text>;

class ArgsSession final : public ISession {
public:
    explicit ArgsSession(const Vocabulary& words) : vocabulary(words), parser("bench") {
        options.reserve(words.options.size());
        for (const DeclaredOption& item : words.options) {
            options.push_back(declare(item));
        }
    }

    void parse(const CommandLine& line) override {
        if (!parser.ParseCLI(line.argc(), line.argv())) {
            throw std::runtime_error("args refuses an argument");
        }
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        for (std::size_t option : asked) {
            readOne(vocabulary.options[option], *options[option], sum);
        }
    }

    std::string help() override { return parser.Help(); }

private:
    static const std::unordered_map<Text, Text>& choiceMap() {
        static const std::unordered_map<Text, Text> map = [] {
            std::unordered_map<Text, Text> texts;
            for (const char* choice : choices) {
                texts[choice] = choice;
            }
            return texts;
        }();
        return map;
    }

    std::unique_ptr<args::Base> declare(const DeclaredOption& item) {
        const Text& name = item.name;
        const Text& help = item.description;
        if (item.positional) {
            return std::make_unique<args::PositionalList<Text>>(parser, name, help);
        }
        args::Matcher matcher{name};
        if (item.kind == Kind::flag || item.kind == Kind::toggle) {
            return std::make_unique<args::Flag>(parser, name, help, std::move(matcher));
        }
        if (item.kind == Kind::real) {
            return std::make_unique<args::ValueFlag<double>>(
                parser, name, help, std::move(matcher));
        }
        if (item.kind == Kind::choice) {
            return std::make_unique<ChoiceFlag>(
                parser, name, help, std::move(matcher), choiceMap());
        }
        if (item.kind == Kind::integer && vocabulary.multiValued) {
            return std::make_unique<args::ValueFlagList<int>>(
                parser, name, help, std::move(matcher));
        }
        if (item.kind == Kind::integer) {
            return std::make_unique<args::ValueFlag<int>>(parser, name, help, std::move(matcher));
        }
        if (vocabulary.multiValued) {
            return std::make_unique<args::ValueFlagList<Text>>(
                parser, name, help, std::move(matcher));
        }
        return std::make_unique<args::ValueFlag<Text>>(parser, name, help, std::move(matcher));
    }

    void readOne(const DeclaredOption& item, args::Base& base, Checksum* sum) const {
        if (item.positional) {
            addAll(args::get(static_cast<args::PositionalList<Text>&>(base)), sum);
        } else if (item.kind == Kind::flag || item.kind == Kind::toggle) {
            sum->addNumber(args::get(static_cast<args::Flag&>(base)) ? 1 : 0);
        } else if (item.kind == Kind::real) {
            sum->addReal(args::get(static_cast<args::ValueFlag<double>&>(base)));
        } else if (item.kind == Kind::choice) {
            sum->addText(args::get(static_cast<ChoiceFlag&>(base)));
        } else if (item.kind == Kind::integer && vocabulary.multiValued) {
            addAll(args::get(static_cast<args::ValueFlagList<int>&>(base)), sum);
        } else if (item.kind == Kind::integer) {
            sum->addInteger(args::get(static_cast<args::ValueFlag<int>&>(base)));
        } else if (vocabulary.multiValued) {
            addAll(args::get(static_cast<args::ValueFlagList<Text>&>(base)), sum);
        } else {
            sum->addText(args::get(static_cast<args::ValueFlag<Text>&>(base)));
        }
    }

    const Vocabulary& vocabulary;
    args::ArgumentParser parser;
    std::vector<std::unique_ptr<args::Base>> options;
};

}  // namespace

Peer argsPeer() { return makePeer<ArgsSession>("args", Limits()); }

}  // namespace zarn_benchmarks
