// getopt_long of the C library: a table, a loop, and the tool's own fields.

#include <getopt.h>

#include "peers/field_session.h"

namespace zarn_benchmarks {

namespace {

constexpr int firstCode = 256;

class GetoptSession final : public FieldSession {
public:
    explicit GetoptSession(const Vocabulary& vocabulary) : FieldSession(vocabulary) {
        table_.reserve(vocabulary.options.size() + 1);
        int code = firstCode;
        for (const DeclaredOption& item : vocabulary.options) {
            const int argument = isSwitch(item.kind) ? no_argument : required_argument;
            table_.push_back({item.name.c_str(), argument, nullptr, code++});
        }
        table_.push_back({nullptr, 0, nullptr, 0});
    }

    void parse(const CommandLine& line) override {
        optind = 0;  // begins anew
        opterr = 0;
        int code = 0;
        while ((code = getopt_long(line.argc(), line.argv(), "", table_.data(), nullptr)) != -1) {
            if (code < firstCode) {
                throw std::runtime_error("getopt_long refuses an argument");
            }
            keepArgument(static_cast<std::size_t>(code - firstCode), optarg);
        }
        for (int i = optind; i < line.argc(); ++i) {
            keepArgument(0, line.argv()[i]);
        }
    }

private:
    std::vector<option> table_;
};

}  // namespace

Peer getoptPeer() {
    return makePeer<GetoptSession>("getopt_long", canAbbreviate | canTakeMany | canBeCounted);
}

}  // namespace zarn_benchmarks
