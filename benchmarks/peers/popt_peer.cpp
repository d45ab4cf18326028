// popt: a table, a loop, copies of the texts that the tool frees, and its own fields.

#include <popt.h>

#include <cstdlib>

#include "peers/field_session.h"

namespace zarn_benchmarks {

namespace {

class PoptSession final : public FieldSession {
public:
    explicit PoptSession(const Vocabulary& vocabulary) : FieldSession(vocabulary) {
        table_.reserve(vocabulary.options.size() + 1);
        int code = 0;
        for (const DeclaredOption& item : vocabulary.options) {
            table_.push_back(row(item, ++code));
        }
        table_.push_back({nullptr, '\0', 0, nullptr, 0, nullptr, nullptr});
    }

    ~PoptSession() override {
        for (char* text : texts_) {
            std::free(text);
        }
        poptFreeContext(context_);
    }

    void parse(const CommandLine& line) override {
        begin(line.argc(), const_cast<const char**>(line.argv()));
        int code = 0;
        while ((code = poptGetNextOpt(context_)) > 0) {
            take(static_cast<std::size_t>(code) - 1);
        }
        if (code != -1) {
            throw std::runtime_error("popt refuses an argument");
        }
        const char** rest = poptGetArgs(context_);
        while (rest != nullptr && *rest != nullptr) {
            keepArgument(0, *rest++);
        }
    }

    std::string help() override {
        const char* argv[] = {"bench", nullptr};
        begin(1, argv);
        return printed([this](std::FILE* stream) { poptPrintHelp(context_, stream, 0); });
    }

private:
    poptOption row(const DeclaredOption& item, int code) {
        unsigned type = isSwitch(item.kind) ? POPT_ARG_NONE : POPT_ARG_STRING;
        void* target = nullptr;
        if (item.kind == Kind::integer) {
            type = POPT_ARG_INT;
            target = &integer_;
        } else if (item.kind == Kind::real) {
            type = POPT_ARG_DOUBLE;
            target = &real_;
        }
        const char* help = item.description.c_str();
        return {item.name.c_str(), '\0', type, target, code, help, "VALUE"};
    }

    void begin(int argc, const char** argv) {
        context_ = poptGetContext("bench", argc, argv, table_.data(), 0);
    }

    void take(std::size_t option) {
        const Kind kind = item(option).kind;
        if (kind == Kind::integer) {
            keep(option, integer_);
        } else if (kind == Kind::real) {
            keep(option, real_);
        } else if (isSwitch(kind)) {
            keep(option, 1);
        } else {
            texts_.push_back(poptGetOptArg(context_));
            keepArgument(option, texts_.back());
        }
    }

    std::vector<poptOption> table_;
    std::vector<char*> texts_;
    poptContext context_ = nullptr;
    int integer_ = 0;
    double real_ = 0;
};

}  // namespace

Peer poptPeer() { return makePeer<PoptSession>("popt", canHelp | canTakeMany); }

}  // namespace zarn_benchmarks
