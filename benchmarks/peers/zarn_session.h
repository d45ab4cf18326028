// zarn behind the interface of all peers.

#ifndef ZARN_PEERS_ZARN_SESSION_H
#define ZARN_PEERS_ZARN_SESSION_H

#include <climits>
#include <memory>

#include "peer.h"
#include "zarn/zarn.h"

namespace zarn_benchmarks {

inline constexpr int wholeLine = INT_MAX;

struct Destroy {
    template <typename Interface>
    void operator()(Interface* made) const noexcept {
        made->destroy();
    }
};

template <typename Interface>
using Owned = std::unique_ptr<Interface, Destroy>;

class ZarnSession : public Session {
public:
    explicit ZarnSession(const Vocabulary& vocabulary, int flags = 0) : Session(vocabulary) {
        zarn::IParser* made = nullptr;
        if (zarn::createParser(&made, flags) != zarn::resultOk) {
            throw std::runtime_error("no parser");
        }
        parser_.reset(made);
        for (const DeclaredOption& item : vocabulary.options) {
            declare(item);
        }
    }

    // Parsing again drops the values of the last time.
    void parse(const CommandLine& line) override {
        beginResult();
        require(parser_->parseArgsVector(line.argc(), line.argv(), result_.get()));
    }

    void parseText(const char* text) {
        beginResult();
        require(parser_->parseStream(text, result_.get()));
    }

    void read(std::size_t option, Checksum* sum) override {
        const DeclaredOption& asked = item(option);
        const char* name = asked.name.c_str();
        zarn::Value value = result_->get(name, 0, wholeLine);
        while (value.status == 0) {
            add(asked.kind, value, sum);
            if (!vocabulary_.multiValued) {
                break;
            }
            value = result_->next(name);
        }
    }

    std::string help() override { return parser_->getGlobalModifiersDescription(false); }

    zarn::IParser& parser() { return *parser_; }
    zarn::IParseResult& result() { return *result_; }

private:
    void declare(const DeclaredOption& item) {
        constexpr zarn::das_variant_type_t types[] = {zarn::vtString,
                                                      zarn::vtS32,
                                                      zarn::vtDouble,
                                                      zarn::vtString,
                                                      zarn::vtNull,
                                                      zarn::vtBool};
        const auto type = types[static_cast<std::size_t>(item.kind)];
        zarn::IOption& option =
            parser_->option(item.name.c_str(), item.description.c_str(), type, "main:Options");
        if (item.positional) {
            option.positional().tokenize(0);
        }
        if (item.kind == Kind::choice) {
            for (const char* choice : choices) {
                option.allowValue(choice);
            }
        }
    }

    static void add(Kind kind, const zarn::Value& value, Checksum* sum) {
        if (kind == Kind::integer) {
            sum->add(value.value.get<int>());
        } else if (kind == Kind::real) {
            sum->add(value.value.get<double>());
        } else if (isSwitch(kind)) {
            sum->add(kind == Kind::flag || value.value.get<bool>());
        } else {
            sum->add(value.text);
        }
    }

    void beginResult() {
        result_.reset();
        zarn::IParseResult* made = nullptr;
        require(parser_->createResult(&made));
        result_.reset(made);
    }

    void require(int code) {
        if (code != zarn::resultOk) {
            throw std::runtime_error(parser_->getErrorDesc());
        }
    }

    Owned<zarn::IParser> parser_;
    Owned<zarn::IParseResult> result_;
};

}  // namespace zarn_benchmarks

#endif  // ZARN_PEERS_ZARN_SESSION_H
