// popt: a table, a loop, copies of the texts that the tool frees, and its own fields.

#include <popt.h>

#include <cstdio>
#include <cstdlib>

#include "peer.h"
#include "peers/field_store.h"

namespace zarn_benchmarks {

namespace {

class PoptSession final : public ISession {
public:
    explicit PoptSession(const Vocabulary& words) : vocabulary(words), fields(words) {
        table.reserve(words.options.size() + 1);
        for (std::size_t i = 0; i < words.options.size(); ++i) {
            table.push_back(row(words.options[i], static_cast<int>(i) + 1));
        }
        table.push_back({nullptr, '\0', 0, nullptr, 0, nullptr, nullptr});
    }

    ~PoptSession() override {
        for (char* text : texts) {
            std::free(text);
        }
        poptFreeContext(context);
    }

    PoptSession(const PoptSession&) = delete;
    PoptSession& operator=(const PoptSession&) = delete;

    void parse(const CommandLine& line) override {
        const auto argv = const_cast<const char**>(line.argv());
        context = poptGetContext("bench", line.argc(), argv, table.data(), 0);
        int code = 0;
        while ((code = poptGetNextOpt(context)) > 0) {
            take(static_cast<std::size_t>(code) - 1);
        }
        if (code != -1) {
            throw std::runtime_error("popt refuses an argument");
        }
        const char** rest = poptGetArgs(context);
        while (rest != nullptr && *rest != nullptr) {
            fields.keep(0, *rest++);
        }
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        fields.read(asked, sum);
    }

    std::string help() override {
        const char* argv[] = {"bench", nullptr};
        context = poptGetContext("bench", 1, argv, table.data(), 0);
        char* text = nullptr;
        std::size_t size = 0;
        std::FILE* stream = open_memstream(&text, &size);
        poptPrintHelp(context, stream, 0);
        std::fclose(stream);
        std::string copy(text, size);
        std::free(text);
        return copy;
    }

private:
    poptOption row(const DeclaredOption& item, int code) {
        poptOption option{item.name.c_str(),
                          '\0',
                          POPT_ARG_STRING,
                          nullptr,
                          code,
                          item.description.c_str(),
                          "VALUE"};
        if (item.kind == Kind::integer) {
            option.argInfo = POPT_ARG_INT;
            option.arg = &integer;
        } else if (item.kind == Kind::real) {
            option.argInfo = POPT_ARG_DOUBLE;
            option.arg = &real;
        } else if (item.kind == Kind::flag || item.kind == Kind::toggle) {
            option.argInfo = POPT_ARG_NONE;
        }
        return option;
    }

    void take(std::size_t option) {
        const Kind kind = vocabulary.options[option].kind;
        if (kind == Kind::integer) {
            fields.keepInteger(option, integer);
        } else if (kind == Kind::real) {
            fields.keepReal(option, real);
        } else if (kind == Kind::flag || kind == Kind::toggle) {
            fields.keepInteger(option, 1);
        } else {
            texts.push_back(poptGetOptArg(context));
            fields.keep(option, texts.back());
        }
    }

    const Vocabulary& vocabulary;
    FieldStore fields;
    std::vector<poptOption> table;
    std::vector<char*> texts;
    poptContext context = nullptr;
    int integer = 0;
    double real = 0;
};

}  // namespace

Peer poptPeer() {
    Limits limits;
    limits.allocationsAreCounted = false;
    return makePeer<PoptSession>("popt", limits);
}

}  // namespace zarn_benchmarks
