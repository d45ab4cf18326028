// argp of the C library: a table, a callback, and the tool's own fields.

#include <argp.h>

#include "peers/field_session.h"

namespace zarn_benchmarks {

namespace {

constexpr int firstCode = 256;

class ArgpSession final : public FieldSession {
public:
    explicit ArgpSession(const Vocabulary& vocabulary) : FieldSession(vocabulary) {
        table_.reserve(vocabulary.options.size() + 1);
        int code = firstCode;
        for (const DeclaredOption& item : vocabulary.options) {
            const char* value = isSwitch(item.kind) ? nullptr : "VALUE";
            table_.push_back({item.name.c_str(), code++, value, 0, item.description.c_str(), 0});
        }
        table_.push_back({nullptr, 0, nullptr, 0, nullptr, 0});
        definition_ = {table_.data(), &take, nullptr, nullptr, nullptr, nullptr, nullptr};
    }

    void parse(const CommandLine& line) override {
        const unsigned quietly = ARGP_NO_HELP | ARGP_NO_EXIT | ARGP_NO_ERRS;
        if (argp_parse(&definition_, line.argc(), line.argv(), quietly, nullptr, this) != 0) {
            throw std::runtime_error("argp refuses an argument");
        }
    }

    std::string help() override {
        return printed([this](std::FILE* stream) {
            char name[] = "bench";
            argp_help(&definition_, stream, ARGP_HELP_LONG, name);
        });
    }

private:
    static error_t take(int key, char* argument, argp_state* state) {
        auto* self = static_cast<ArgpSession*>(state->input);
        if (key >= firstCode && key < firstCode + static_cast<int>(self->table_.size())) {
            self->keepArgument(static_cast<std::size_t>(key - firstCode), argument);
            return 0;
        }
        if (key == ARGP_KEY_ARG) {
            self->keepArgument(0, argument);
            return 0;
        }
        return ARGP_ERR_UNKNOWN;
    }

    std::vector<argp_option> table_;
    argp definition_{};
};

}  // namespace

Peer argpPeer() { return makePeer<ArgpSession>("argp", canAbbreviate | canHelp | canTakeMany); }

}  // namespace zarn_benchmarks
