// Boost.Program_options: a description, a variables map read by name.

#include <boost/program_options.hpp>
#include <sstream>

#include "peer.h"
#include "peers/field_session.h"
#include "peers/value_types.h"

namespace po = boost::program_options;

namespace zarn_benchmarks {

namespace {

const po::value_semantic* semantic(Kind, bool) { return po::bool_switch(); }

const po::value_semantic* semantic(Kind kind, const std::string&) {
    auto* value = po::value<std::string>();
    return kind == Kind::choice ? value->notifier(&requireChoice) : value;
}

template <typename Type>
const po::value_semantic* semantic(Kind, const Type&) {
    return po::value<Type>();
}

class BoostSession final : public Session {
public:
    explicit BoostSession(const Vocabulary& vocabulary) : Session(vocabulary) {
        auto add = description_.add_options();
        for (const DeclaredOption& item : vocabulary.options) {
            withTypeOf(item, vocabulary.multiValued, [&](const auto& empty) {
                add(item.name.c_str(), semantic(item.kind, empty), item.description.c_str());
            });
            if (item.positional) {
                positional_.add(item.name.c_str(), -1);
            }
        }
    }

    void parse(const CommandLine& line) override {
        po::command_line_parser parser(line.argc(), line.argv());
        po::store(parser.options(description_).positional(positional_).run(), variables_);
        po::notify(variables_);
    }

    void read(std::size_t option, Checksum* sum) override {
        const po::variable_value& value = variables_[item(option).name];
        if (value.empty()) {
            return;
        }
        withTypeOf(item(option), vocabulary_.multiValued, [&](const auto& empty) {
            sum->add(value.as<std::decay_t<decltype(empty)>>());
        });
    }

    std::string help() override {
        std::ostringstream text;
        text << description_;
        return text.str();
    }

private:
    po::options_description description_;
    po::positional_options_description positional_;
    po::variables_map variables_;
};

}  // namespace

Peer boostPeer() { return makePeer<BoostSession>("Boost", canAbbreviate | canHelp | canBeCounted); }

}  // namespace zarn_benchmarks
