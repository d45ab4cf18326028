#include "peers/zarn_session.h"

namespace zarn_benchmarks {

namespace {

zarn::das_variant_type_t typeOf(Kind kind) {
    switch (kind) {
        case Kind::integer:
            return zarn::vtS32;
        case Kind::real:
            return zarn::vtDouble;
        case Kind::flag:
            return zarn::vtNull;
        case Kind::toggle:
            return zarn::vtBool;
        case Kind::text:
        case Kind::choice:
            break;
    }
    return zarn::vtString;
}

void readOne(Kind kind, const zarn::Value& value, Checksum* sum) {
    switch (kind) {
        case Kind::integer:
            sum->addInteger(value.value.get<int>());
            break;
        case Kind::real:
            sum->addReal(value.value.get<double>());
            break;
        case Kind::text:
        case Kind::choice:
            sum->addText(value.text);
            break;
        case Kind::flag:
            sum->addNumber(1);
            break;
        case Kind::toggle:
            sum->addNumber(value.value.get<bool>() ? 1 : 0);
            break;
    }
}

class ZarnTakingRest final : public ZarnSession {
public:
    explicit ZarnTakingRest(const Vocabulary& words)
        : ZarnSession(words, zarn::flagPositionalTakesRest) {}
};

}  // namespace

ZarnSession::ZarnSession(const Vocabulary& words, int flags) : vocabulary(words) {
    require(zarn::createParser(&declared, flags));
    for (const DeclaredOption& item : words.options) {
        zarn::IOption& option = declared->option(
            item.name.c_str(), item.description.c_str(), typeOf(item.kind), "main:Options");
        if (item.positional) {
            option.positional().tokenize(0);
        }
        if (item.kind == Kind::choice) {
            for (const char* choice : choices) {
                option.allowValue(choice);
            }
        }
    }
}

ZarnSession::~ZarnSession() {
    dropResult();
    if (declared != nullptr) {
        declared->destroy();
    }
}

void ZarnSession::parse(const CommandLine& line) {
    beginResult();
    require(declared->parseArgsVector(line.argc(), line.argv(), parsed));
}

void ZarnSession::parseText(const char* text) {
    beginResult();
    require(declared->parseStream(text, parsed));
}

void ZarnSession::read(const std::vector<std::size_t>& asked, Checksum* sum) {
    for (std::size_t option : asked) {
        const DeclaredOption& item = vocabulary.options[option];
        const char* name = item.name.c_str();
        for (zarn::Value value = parsed->get(name, 0, wholeLine); value.status == 0;
             value = parsed->next(name)) {
            readOne(item.kind, value, sum);
            if (!vocabulary.multiValued) {
                break;
            }
        }
    }
}

std::string ZarnSession::help() { return declared->getGlobalModifiersDescription(false); }

void ZarnSession::beginResult() {
    dropResult();
    require(declared->createResult(&parsed));
}

void ZarnSession::dropResult() {
    if (parsed != nullptr) {
        parsed->destroy();
        parsed = nullptr;
    }
}

void ZarnSession::require(int code) {
    if (code != zarn::resultOk) {
        throw std::runtime_error(declared != nullptr ? declared->getErrorDesc() : "no parser");
    }
}

Peer zarnPeer() {
    Limits limits;
    limits.abbreviations = true;
    return makePeer<ZarnSession>("zarn", limits);
}

Peer zarnTakingRestPeer() { return makePeer<ZarnTakingRest>("zarn-rest", Limits()); }

}  // namespace zarn_benchmarks
