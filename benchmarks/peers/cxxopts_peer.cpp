// cxxopts: a description, a result read by name.

#include <cxxopts.hpp>

#include "peer.h"
#include "peers/field_store.h"
#include "peers/value_lists.h"

namespace zarn_benchmarks {

namespace {

std::shared_ptr<cxxopts::Value> valueType(const DeclaredOption& item, bool multiValued) {
    switch (item.kind) {
        case Kind::integer:
            return multiValued ? cxxopts::value<std::vector<int>>() : cxxopts::value<int>();
        case Kind::real:
            return cxxopts::value<double>();
        case Kind::flag:
        case Kind::toggle:
            return cxxopts::value<bool>();
        case Kind::text:
        case Kind::choice:
            break;
    }
    return multiValued ? cxxopts::value<std::vector<std::string>>() : cxxopts::value<std::string>();
}

class CxxoptsSession final : public ISession {
public:
    explicit CxxoptsSession(const Vocabulary& words) : vocabulary(words), options("bench") {
        auto add = options.add_options();
        for (const DeclaredOption& item : words.options) {
            add(item.name, item.description, valueType(item, words.multiValued));
            if (item.positional) {
                options.parse_positional({item.name});
            }
        }
    }

    void parse(const CommandLine& line) override {
        result = options.parse(line.argc(), line.argv());
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        for (std::size_t option : asked) {
            const DeclaredOption& item = vocabulary.options[option];
            if (result.count(item.name) > 0) {
                readOne(item.kind, result[item.name], sum);
            }
        }
    }

    std::string help() override { return options.help(); }

private:
    void readOne(Kind kind, const cxxopts::OptionValue& value, Checksum* sum) const {
        if (kind == Kind::real) {
            sum->addReal(value.as<double>());
        } else if (kind == Kind::flag || kind == Kind::toggle) {
            sum->addNumber(value.as<bool>() ? 1 : 0);
        } else if (kind == Kind::choice) {
            requireChoice(value.as<std::string>().c_str());
            sum->addText(value.as<std::string>());
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
    cxxopts::Options options;
    cxxopts::ParseResult result;
};

}  // namespace

Peer cxxoptsPeer() { return makePeer<CxxoptsSession>("cxxopts", Limits()); }

}  // namespace zarn_benchmarks
