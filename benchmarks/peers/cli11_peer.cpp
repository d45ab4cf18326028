// CLI11: options bound to the tool's variables.

#include <CLI/CLI.hpp>
#include <variant>

#include "peer.h"
#include "peers/value_types.h"

namespace zarn_benchmarks {

namespace {

using Field =
    std::variant<bool, int, double, std::string, std::vector<int>, std::vector<std::string>>;

class Cli11Session final : public Session {
public:
    explicit Cli11Session(const Vocabulary& vocabulary)
        : Session(vocabulary), fields_(vocabulary.options.size()), app_("bench") {
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            withTypeOf(item(i), vocabulary.multiValued, [&](const auto& empty) {
                fields_[i] = empty;
                declare(item(i), &std::get<std::decay_t<decltype(empty)>>(fields_[i]));
            });
        }
    }

    void parse(const CommandLine& line) override { app_.parse(line.argc(), line.argv()); }

    void read(std::size_t option, Checksum* sum) override {
        std::visit([sum](const auto& value) { sum->add(value); }, fields_[option]);
    }

    std::string help() override { return app_.help(); }

private:
    void declare(const DeclaredOption& item, bool* flag) {
        app_.add_flag("--" + item.name, *flag, item.description);
    }

    template <typename Type>
    void declare(const DeclaredOption& item, Type* value) {
        const std::string name = item.positional ? item.name : "--" + item.name;
        CLI::Option* option = app_.add_option(name, *value, item.description);
        if (item.kind == Kind::choice) {
            option->check(
                CLI::IsMember(std::vector<std::string>(std::begin(choices), std::end(choices))));
        }
        if (vocabulary_.multiValued) {
            option->allow_extra_args(item.positional);
        }
    }

    std::vector<Field> fields_;
    CLI::App app_;
};

}  // namespace

Peer cli11Peer() { return makePeer<Cli11Session>("CLI11", canHelp | canTakeMany | canBeCounted); }

}  // namespace zarn_benchmarks
