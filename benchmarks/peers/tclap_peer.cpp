// TCLAP: one object an option, read through it.

#include <tclap/CmdLine.h>

#include <sstream>

#include "peer.h"
#include "peers/value_types.h"

namespace zarn_benchmarks {

namespace {

using Text = std::string;

std::vector<Text> choiceTexts(std::begin(choices), std::end(choices));

class HelpText : public TCLAP::StdOutput {
public:
    std::string of(TCLAP::CmdLineInterface& commandLine) {
        std::ostringstream text;
        _longUsage(commandLine, text);
        return text.str();
    }
};

class TclapSession final : public Session {
public:
    explicit TclapSession(const Vocabulary& vocabulary)
        : Session(vocabulary), commandLine_("bench", '=', "1", false), allowed_(choiceTexts) {
        commandLine_.setExceptionHandling(false);
        options_.reserve(vocabulary.options.size());
        for (const DeclaredOption& item : vocabulary.options) {
            declare(item);
        }
    }

    void parse(const CommandLine& line) override { commandLine_.parse(line.argc(), line.argv()); }

    void read(std::size_t option, Checksum* sum) override {
        withTypeOf(item(option), vocabulary_.multiValued, [&](const auto& empty) {
            sum->add(valueOf(*options_[option], empty));
        });
    }

    std::string help() override { return HelpText().of(commandLine_); }

private:
    static bool valueOf(TCLAP::Arg& arg, bool) {
        return static_cast<TCLAP::SwitchArg&>(arg).getValue();
    }

    template <typename Item>
    static const std::vector<Item>& valueOf(TCLAP::Arg& arg, const std::vector<Item>&) {
        return static_cast<TCLAP::MultiArg<Item>&>(arg).getValue();
    }

    template <typename Type>
    static const Type& valueOf(TCLAP::Arg& arg, const Type&) {
        return static_cast<TCLAP::ValueArg<Type>&>(arg).getValue();
    }

    template <typename Option, typename... More>
    void add(More&&... more) {
        options_.push_back(std::make_unique<Option>(std::forward<More>(more)..., commandLine_));
    }

    void declare(const DeclaredOption& item, bool) {
        add<TCLAP::SwitchArg>("", item.name, item.description);
    }

    template <typename Item>
    void declare(const DeclaredOption& item, const std::vector<Item>&) {
        add<TCLAP::MultiArg<Item>>("", item.name, item.description, false, "v");
    }

    template <typename Type>
    void declare(const DeclaredOption& item, const Type& none) {
        add<TCLAP::ValueArg<Type>>("", item.name, item.description, false, none, "v");
    }

    void declare(const DeclaredOption& item) {
        const Text& help = item.description;
        if (item.positional) {
            add<TCLAP::UnlabeledMultiArg<Text>>(item.name, help, false, "v");
        } else if (item.kind == Kind::choice) {
            add<TCLAP::ValueArg<Text>>("", item.name, help, false, "", &allowed_);
        } else {
            withTypeOf(
                item, vocabulary_.multiValued, [&](const auto& empty) { declare(item, empty); });
        }
    }

    TCLAP::CmdLine commandLine_;
    TCLAP::ValuesConstraint<Text> allowed_;
    std::vector<std::unique_ptr<TCLAP::Arg>> options_;
};

}  // namespace

Peer tclapPeer() { return makePeer<TclapSession>("TCLAP", canHelp | canTakeMany | canBeCounted); }

}  // namespace zarn_benchmarks
