// CLI11: options bound to the tool's variables.

#include <CLI/CLI.hpp>

#include "peer.h"
#include "peers/value_lists.h"

namespace zarn_benchmarks {

namespace {

struct Field {
    std::string text;
    int integer = 0;
    double real = 0;
    bool flag = false;
    std::vector<std::string> texts;
    std::vector<int> integers;
};

class Cli11Session final : public ISession {
public:
    explicit Cli11Session(const Vocabulary& words)
        : vocabulary(words), fields(words.options.size()), app("bench") {
        for (std::size_t i = 0; i < words.options.size(); ++i) {
            const OptionSpec& spec = words.options[i];
            declare(spec, spec.positional ? spec.name : "--" + spec.name, &fields[i]);
        }
    }

    void parse(const CommandLine& line) override { app.parse(line.argc(), line.argv()); }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        for (std::size_t option : asked) {
            readOne(vocabulary.options[option].kind, fields[option], sum);
        }
    }

    std::string help() override { return app.help(); }

private:
    void declare(const OptionSpec& spec, const std::string& name, Field* field) {
        const bool multiValued = vocabulary.multiValued;
        if (spec.kind == Kind::flag || spec.kind == Kind::toggle) {
            app.add_flag(name, field->flag, spec.description);
        } else if (spec.kind == Kind::real) {
            app.add_option(name, field->real, spec.description);
        } else if (spec.kind == Kind::choice) {
            const std::vector<std::string> members(std::begin(choices), std::end(choices));
            app.add_option(name, field->text, spec.description)->check(CLI::IsMember(members));
        } else if (spec.kind == Kind::integer && multiValued) {
            app.add_option(name, field->integers, spec.description)->allow_extra_args(false);
        } else if (spec.kind == Kind::integer) {
            app.add_option(name, field->integer, spec.description);
        } else if (multiValued) {
            app.add_option(name, field->texts, spec.description)->allow_extra_args(spec.positional);
        } else {
            app.add_option(name, field->text, spec.description);
        }
    }

    void readOne(Kind kind, const Field& field, Checksum* sum) const {
        if (kind == Kind::real) {
            sum->addReal(field.real);
        } else if (kind == Kind::flag || kind == Kind::toggle) {
            sum->addNumber(field.flag ? 1 : 0);
        } else if (kind == Kind::integer && vocabulary.multiValued) {
            addAll(field.integers, sum);
        } else if (kind == Kind::integer) {
            sum->addInteger(field.integer);
        } else if (vocabulary.multiValued) {
            addAll(field.texts, sum);
        } else {
            sum->addText(field.text);
        }
    }

    const Vocabulary& vocabulary;
    std::vector<Field> fields;
    CLI::App app;
};

}  // namespace

Peer cli11Peer() { return makePeer<Cli11Session>("CLI11", Limits()); }

}  // namespace zarn_benchmarks
