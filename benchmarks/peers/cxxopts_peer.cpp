// cxxopts: a description, a result read by name.

#include <cxxopts.hpp>

#include "peer.h"
#include "peers/field_session.h"
#include "peers/value_types.h"

namespace zarn_benchmarks {

namespace {

class CxxoptsSession final : public Session {
public:
    explicit CxxoptsSession(const Vocabulary& vocabulary) : Session(vocabulary), options_("bench") {
        auto add = options_.add_options();
        for (const DeclaredOption& item : vocabulary.options) {
            withTypeOf(item, vocabulary.multiValued, [&](const auto& empty) {
                using Type = std::decay_t<decltype(empty)>;
                add(item.name, item.description, cxxopts::value<Type>());
            });
            if (item.positional) {
                options_.parse_positional({item.name});
            }
        }
    }

    void parse(const CommandLine& line) override {
        result_ = options_.parse(line.argc(), line.argv());
    }

    void read(std::size_t option, Checksum* sum) override {
        const DeclaredOption& asked = item(option);
        if (result_.count(asked.name) == 0) {
            return;
        }
        const cxxopts::OptionValue& value = result_[asked.name];
        if (asked.kind == Kind::choice) {
            requireChoice(value.as<std::string>().c_str());
        }
        withTypeOf(asked, vocabulary_.multiValued, [&](const auto& empty) {
            sum->add(value.as<std::decay_t<decltype(empty)>>());
        });
    }

    std::string help() override { return options_.help(); }

private:
    cxxopts::Options options_;
    cxxopts::ParseResult result_;
};

}  // namespace

Peer cxxoptsPeer() {
    return makePeer<CxxoptsSession>("cxxopts", canHelp | canTakeMany | canBeCounted);
}

}  // namespace zarn_benchmarks
