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
            const DeclaredOption& item = words.options[i];
            declare(item, item.positional ? item.name : "--" + item.name, &fields[i]);
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
    void declare(const DeclaredOption& item, const std::string& name, Field* field) {
        const bool multiValued = vocabulary.multiValued;
        if (item.kind == Kind::flag || item.kind == Kind::toggle) {
            app.add_flag(name, field->flag, item.description);
        } else if (item.kind == Kind::real) {
            app.add_option(name, field->real, item.description);
        } else if (item.kind == Kind::choice) {
            const std::vector<std::string> members(std::begin(choices), std::end(choices));
            app.add_option(name, field->text, item.description)->check(CLI::IsMember(members));
        } else if (item.kind == Kind::integer && multiValued) {
            app.add_option(name, field->integers, item.description)->allow_extra_args(false);
        } else if (item.kind == Kind::integer) {
            app.add_option(name, field->integer, item.description);
        } else if (multiValued) {
            app.add_option(name, field->texts, item.description)->allow_extra_args(item.positional);
        } else {
            app.add_option(name, field->text, item.description);
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
