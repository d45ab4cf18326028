// zarn behind the interface of all peers.

#ifndef ZARN_PEERS_ZARN_SESSION_H
#define ZARN_PEERS_ZARN_SESSION_H

#include <climits>

#include "peer.h"
#include "zarn/zarn.h"

namespace zarn_benchmarks {

class ZarnSession : public ISession {
public:
    explicit ZarnSession(const Vocabulary& vocabulary, int flags = 0);
    ~ZarnSession() override;
    ZarnSession(const ZarnSession&) = delete;
    ZarnSession& operator=(const ZarnSession&) = delete;

    // Parsing again drops the values of the last time.
    void parse(const CommandLine& line) override;
    void parseText(const char* text);

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override;

    std::string help() override;

    zarn::IParser& parser() { return *declared; }
    zarn::IParseResult& result() { return *parsed; }

private:
    void beginResult();
    void dropResult();
    void require(int code);

    const Vocabulary& vocabulary;
    zarn::IParser* declared = nullptr;
    zarn::IParseResult* parsed = nullptr;
};

inline constexpr int wholeLine = INT_MAX;

}  // namespace zarn_benchmarks

#endif  // ZARN_PEERS_ZARN_SESSION_H
