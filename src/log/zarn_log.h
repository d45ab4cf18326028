// The debug log: a trace of every step of a parse, for those who support the tools.

#ifndef ZARN_LOG_ZARN_LOG_H
#define ZARN_LOG_ZARN_LOG_H

#include <atomic>
#include <initializer_list>
#include <memory>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

#include "zarn/export.h"

namespace zarn_3_3::internal {

// Process-wide, off until the first argument of a command line or option file switches it on.
extern ZARN_EXPORT std::atomic<bool> zarnLogEnabled;

// Swallows what is written to it.
template <typename Char>
class basic_nullbuf : public std::basic_streambuf<Char> {
public:
    ~basic_nullbuf() override = default;
};

// Holds the stream that stands in for the console while the log is off.
class ZarnLog final {
public:
    ZarnLog() = default;
    ZarnLog(const ZarnLog&) = delete;
    ZarnLog& operator=(const ZarnLog&) = delete;
    ~ZarnLog() = default;

    std::ostream& discardingStream();

private:
    std::unique_ptr<basic_nullbuf<char>> buffer_;
    std::unique_ptr<std::ostream> stream_;  // writes to the buffer, so it goes first
};

// Where trace lines go: the console, or nowhere while the log is off.
std::ostream& zarnLog();

inline bool isLogSwitch(std::string_view argument) noexcept {
    return argument == "zarnoption=zarnlogenable=1";
}

// Looks for the log switch: the log is on afterwards if `firstArgument` is it, and off otherwise.
bool switchLog(std::string_view firstArgument) noexcept;
void switchLogOff() noexcept;

inline bool isLogOn() noexcept { return zarnLogEnabled.load(std::memory_order_relaxed); }

// A text, or a number, which is written as the flags of the stream say.
struct TracePiece {
    TracePiece(std::string_view ofLine) : text(ofLine) {}
    TracePiece(const std::string& ofLine) : text(ofLine) {}
    TracePiece(const char* ofLine) : text(ofLine) {}
    TracePiece(int ofLine) : number(ofLine) {}

    std::string_view text;
    std::optional<int> number;
};

void writeTraceLine(std::initializer_list<TracePiece> pieces);

template <typename... Pieces>
[[gnu::cold, gnu::noinline]] void writeTrace(const Pieces&... pieces) {
    writeTraceLine({TracePiece(pieces)...});
}

// Writes one line made of `pieces`. This is where the switch is tested, before anything is
// formatted, so that a step with the log off pays for one test; the rest is kept out of its way.
template <typename... Pieces>
[[gnu::always_inline]] inline void trace(const Pieces&... pieces) {
    if (isLogOn()) {
        writeTrace(pieces...);
    }
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_LOG_ZARN_LOG_H
