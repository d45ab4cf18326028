// TCLAP: one object an option, read through it.

#include <tclap/CmdLine.h>

#include <sstream>

#include "peer.h"
#include "peers/value_lists.h"

namespace zarn_benchmarks {

namespace {

using Text = std::string;

class HelpText : public TCLAP::StdOutput {
public:
    std::string of(TCLAP::CmdLineInterface& commandLine) {
        std::ostringstream text;
        _longUsage(commandLine, text);
        return text.str();
    }
};

class TclapSession final : public ISession {
public:
    explicit TclapSession(const Vocabulary& words)
        : vocabulary(words), commandLine("bench", '=', "1", false), allowed(choiceTexts()) {
        commandLine.setExceptionHandling(false);
        options.reserve(words.options.size());
        for (const DeclaredOption& item : words.options) {
            options.push_back(declare(item));
        }
    }

    void parse(const CommandLine& line) override { commandLine.parse(line.argc(), line.argv()); }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        for (std::size_t option : asked) {
            readOne(vocabulary.options[option], *options[option], sum);
        }
    }

    std::string help() override { return HelpText().of(commandLine); }

private:
    static std::vector<Text>& choiceTexts() {
        static std::vector<Text> texts(std::begin(choices), std::end(choices));
        return texts;
    }

    std::unique_ptr<TCLAP::Arg> declare(const DeclaredOption& item) {
        using namespace TCLAP;
        const Text& name = item.name;
        const Text& help = item.description;
        if (item.positional) {
            return std::make_unique<UnlabeledMultiArg<Text>>(name, help, false, "v", commandLine);
        }
        if (item.kind == Kind::flag || item.kind == Kind::toggle) {
            return std::make_unique<SwitchArg>("", name, help, commandLine);
        }
        if (item.kind == Kind::real) {
            return std::make_unique<ValueArg<double>>("", name, help, false, 0, "v", commandLine);
        }
        if (item.kind == Kind::choice) {
            return std::make_unique<ValueArg<Text>>(
                "", name, help, false, "", &allowed, commandLine);
        }
        if (item.kind == Kind::integer && vocabulary.multiValued) {
            return std::make_unique<MultiArg<int>>("", name, help, false, "v", commandLine);
        }
        if (item.kind == Kind::integer) {
            return std::make_unique<ValueArg<int>>("", name, help, false, 0, "v", commandLine);
        }
        if (vocabulary.multiValued) {
            return std::make_unique<MultiArg<Text>>("", name, help, false, "v", commandLine);
        }
        return std::make_unique<ValueArg<Text>>("", name, help, false, "", "v", commandLine);
    }

    void readOne(const DeclaredOption& item, TCLAP::Arg& arg, Checksum* sum) const {
        using namespace TCLAP;
        if (item.kind == Kind::flag || item.kind == Kind::toggle) {
            sum->addNumber(static_cast<SwitchArg&>(arg).getValue() ? 1 : 0);
        } else if (item.kind == Kind::real) {
            sum->addReal(static_cast<ValueArg<double>&>(arg).getValue());
        } else if (item.kind == Kind::integer && vocabulary.multiValued) {
            addAll(static_cast<MultiArg<int>&>(arg).getValue(), sum);
        } else if (item.kind == Kind::integer) {
            sum->addInteger(static_cast<ValueArg<int>&>(arg).getValue());
        } else if (vocabulary.multiValued) {
            addAll(static_cast<MultiArg<Text>&>(arg).getValue(), sum);
        } else {
            sum->addText(static_cast<ValueArg<Text>&>(arg).getValue());
        }
    }

    const Vocabulary& vocabulary;
    TCLAP::CmdLine commandLine;
    TCLAP::ValuesConstraint<Text> allowed;
    std::vector<std::unique_ptr<TCLAP::Arg>> options;
};

}  // namespace

Peer tclapPeer() { return makePeer<TclapSession>("TCLAP", Limits()); }

}  // namespace zarn_benchmarks
