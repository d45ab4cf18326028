// argp of the C library: a table, a callback, and the tool's own fields.

#include <argp.h>

#include <cstdio>
#include <cstdlib>

#include "peer.h"
#include "peers/field_store.h"

namespace zarn_benchmarks {

namespace {

constexpr int firstCode = 256;

class ArgpSession final : public ISession {
public:
    explicit ArgpSession(const Vocabulary& vocabulary) : fields(vocabulary) {
        table.reserve(vocabulary.options.size() + 1);
        for (std::size_t i = 0; i < vocabulary.options.size(); ++i) {
            const DeclaredOption& item = vocabulary.options[i];
            const bool isFlag = item.kind == Kind::flag || item.kind == Kind::toggle;
            table.push_back({item.name.c_str(),
                             firstCode + static_cast<int>(i),
                             isFlag ? nullptr : "VALUE",
                             0,
                             item.description.c_str(),
                             0});
        }
        table.push_back({nullptr, 0, nullptr, 0, nullptr, 0});
        definition = {
            table.data(), &ArgpSession::take, nullptr, nullptr, nullptr, nullptr, nullptr};
    }

    void parse(const CommandLine& line) override {
        const unsigned quietly = ARGP_NO_HELP | ARGP_NO_EXIT | ARGP_NO_ERRS;
        if (argp_parse(&definition, line.argc(), line.argv(), quietly, nullptr, this) != 0) {
            throw std::runtime_error("argp refuses an argument");
        }
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        fields.read(asked, sum);
    }

    std::string help() override {
        char* text = nullptr;
        std::size_t size = 0;
        std::FILE* stream = open_memstream(&text, &size);
        char name[] = "bench";
        argp_help(&definition, stream, ARGP_HELP_LONG, name);
        std::fclose(stream);
        std::string copy(text, size);
        std::free(text);
        return copy;
    }

private:
    static error_t take(int key, char* argument, argp_state* state) {
        auto* self = static_cast<ArgpSession*>(state->input);
        if (key >= firstCode && key < firstCode + static_cast<int>(self->table.size())) {
            self->fields.keep(static_cast<std::size_t>(key - firstCode), argument);
            return 0;
        }
        if (key == ARGP_KEY_ARG) {
            self->fields.keep(0, argument);
            return 0;
        }
        return ARGP_ERR_UNKNOWN;
    }

    std::vector<argp_option> table;
    argp definition{};
    FieldStore fields;
};

}  // namespace

Peer argpPeer() {
    Limits limits;
    limits.abbreviations = true;
    limits.allocationsAreCounted = false;
    return makePeer<ArgpSession>("argp", limits);
}

}  // namespace zarn_benchmarks
