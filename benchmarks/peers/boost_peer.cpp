// Boost.Program_options: a description, a variables map read by name.

#include <boost/program_options.hpp>
#include <sstream>

#include "peer.h"
#include "peers/field_store.h"
#include "peers/value_lists.h"

namespace po = boost::program_options;

namespace zarn_benchmarks {

namespace {

const po::value_semantic* semantic(const DeclaredOption& item, bool multiValued) {
    switch (item.kind) {
        case Kind::integer:
            return multiValued ? static_cast<po::value_semantic*>(po::value<std::vector<int>>())
                               : po::value<int>();
        case Kind::real:
            return po::value<double>();
        case Kind::choice:
            return po::value<std::string>()->notifier(
                [](const std::string& text) { requireChoice(text.c_str()); });
        case Kind::flag:
        case Kind::toggle:
            return po::bool_switch();
        case Kind::text:
            break;
    }
    return multiValued ? static_cast<po::value_semantic*>(po::value<std::vector<std::string>>())
                       : po::value<std::string>();
}

class BoostSession final : public ISession {
public:
    explicit BoostSession(const Vocabulary& words) : vocabulary(words) {
        auto add = description.add_options();
        for (const DeclaredOption& item : words.options) {
            add(item.name.c_str(), semantic(item, words.multiValued), item.description.c_str());
            if (item.positional) {
                positional.add(item.name.c_str(), -1);
            }
        }
    }

    void parse(const CommandLine& line) override {
        po::command_line_parser parser(line.argc(), line.argv());
        po::store(parser.options(description).positional(positional).run(), variables);
        po::notify(variables);
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        for (std::size_t option : asked) {
            const DeclaredOption& item = vocabulary.options[option];
            readOne(item.kind, variables[item.name], sum);
        }
    }

    std::string help() override {
        std::ostringstream text;
        text << description;
        return text.str();
    }

private:
    void readOne(Kind kind, const po::variable_value& value, Checksum* sum) const {
        if (value.empty()) {
            return;
        }
        if (kind == Kind::real) {
            sum->addReal(value.as<double>());
        } else if (kind == Kind::flag || kind == Kind::toggle) {
            sum->addNumber(value.as<bool>() ? 1 : 0);
        } else if (kind == Kind::integer && !vocabulary.multiValued) {
            sum->addInteger(value.as<int>());
        } else if (kind == Kind::integer) {
            addAll(value.as<std::vector<int>>(), sum);
        } else if (!vocabulary.multiValued) {
            sum->addText(value.as<std::string>());
        } else {
            addAll(value.as<std::vector<std::string>>(), sum);
        }
    }

    const Vocabulary& vocabulary;
    po::options_description description;
    po::positional_options_description positional;
    po::variables_map variables;
};

}  // namespace

Peer boostPeer() {
    Limits limits;
    limits.arguments = 10000;  // quadratic
    limits.abbreviations = true;
    return makePeer<BoostSession>("Boost", limits);
}

}  // namespace zarn_benchmarks
