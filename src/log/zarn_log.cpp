#include "log/zarn_log.h"

#include <exception>
#include <mutex>

#include "platform/console.h"

namespace zarn_3_3::internal {

std::atomic<bool> zarnLogEnabled{false};

std::ostream& ZarnLog::discardingStream() {
    if (stream_ == nullptr) {
        buffer_ = std::make_unique<basic_nullbuf<char>>();
        stream_ = std::make_unique<std::ostream>(buffer_.get());
    }
    return *stream_;
}

std::ostream& zarnLog() {
    // Made when it is first needed: most processes never look at the log.
    static ZarnLog log;
    // Another thread may have switched it off since the line was found worth writing.
    return isLogOn() ? TROV_2_18::strings::pl2::ucout : log.discardingStream();
}

bool switchLog(std::string_view firstArgument) noexcept {
    const bool on = isLogSwitch(firstArgument);
    zarnLogEnabled.store(on, std::memory_order_relaxed);
    return on;
}

void switchLogOff() noexcept { zarnLogEnabled.store(false, std::memory_order_relaxed); }

// A log that cannot be written never changes a parse: the state of the stream is not looked at, and
// what it throws, when a client asked for that, goes no further.
//
// One line at a time: parsers in several threads share the switch and both streams. A stream of the
// client's own may parse again while it is written to, hence recursive.
void writeTraceLine(std::initializer_list<TracePiece> pieces) {
    static std::recursive_mutex writing;
    const std::lock_guard<std::recursive_mutex> lock(writing);
    std::ostream& log = zarnLog();
    try {
        for (const TracePiece& piece : pieces) {
            piece.number ? log << *piece.number : log << piece.text;
        }
        log << std::endl;
    } catch (const std::exception&) {
    }
}

}  // namespace zarn_3_3::internal
