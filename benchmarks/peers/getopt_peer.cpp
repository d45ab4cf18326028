// getopt_long of the C library: a table, a loop, and the tool's own fields.

#include <getopt.h>

#include "peer.h"
#include "peers/field_store.h"

namespace zarn_benchmarks {

namespace {

constexpr int firstCode = 256;

class GetoptSession final : public ISession {
public:
    explicit GetoptSession(const Vocabulary& vocabulary) : fields(vocabulary) {
        table.reserve(vocabulary.options.size() + 1);
        for (std::size_t i = 0; i < vocabulary.options.size(); ++i) {
            const DeclaredOption& item = vocabulary.options[i];
            const bool isFlag = item.kind == Kind::flag || item.kind == Kind::toggle;
            table.push_back({item.name.c_str(),
                             isFlag ? no_argument : required_argument,
                             nullptr,
                             firstCode + static_cast<int>(i)});
        }
        table.push_back({nullptr, 0, nullptr, 0});
    }

    void parse(const CommandLine& line) override {
        optind = 0;  // begins anew
        opterr = 0;
        int code = 0;
        while ((code = getopt_long(line.argc(), line.argv(), "", table.data(), nullptr)) != -1) {
            if (code < firstCode) {
                throw std::runtime_error("getopt_long refuses an argument");
            }
            fields.keep(static_cast<std::size_t>(code - firstCode), optarg);
        }
        for (int i = optind; i < line.argc(); ++i) {
            fields.keep(0, line.argv()[i]);
        }
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        fields.read(asked, sum);
    }

private:
    std::vector<option> table;
    FieldStore fields;
};

}  // namespace

Peer getoptPeer() {
    Limits limits;
    limits.abbreviations = true;
    limits.help = false;
    return makePeer<GetoptSession>("getopt_long", limits);
}

}  // namespace zarn_benchmarks
