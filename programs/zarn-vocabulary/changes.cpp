#include "changes.h"

#include <algorithm>
#include <array>

namespace vocabulary {
namespace {

// In the order of the report, which is that of the enumerators.
constexpr std::array severityWords{"breaking", "compatible", "text"};

// Names and values are texts of others: no byte of them ends a line, or moves a cursor.
std::string visible(const std::string& text) {
    constexpr const char* digits = "0123456789abcdef";
    std::string shown;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        if (byte < 0x20 || byte == 0x7f) {
            shown.append("\\x").append(1, digits[byte / 16]).append(1, digits[byte % 16]);
        } else {
            shown += each;
        }
    }
    return shown;
}

}  // namespace

void Changes::breaking(const char* id, const std::string& item, const std::string& what) {
    add({Severity::breaking, id, item, what});
}

void Changes::compatible(const char* id, const std::string& item, const std::string& what) {
    add({Severity::compatible, id, item, what});
}

void Changes::text(const char* id, const std::string& item, const std::string& what) {
    add({Severity::text, id, item, what});
}

void Changes::add(const Change& change) {
    const std::string id = change.id;
    if (ignored_.count(id) == 0 && ignored_.count(id + ":" + change.item) == 0) {
        all_.push_back(change);
    }
}

bool Changes::isBreaking() const {
    return std::any_of(all_.begin(), all_.end(), [](const Change& change) {
        return change.severity == Severity::breaking;
    });
}

std::string Changes::report() const {
    std::string report;
    for (std::size_t severity = 0; severity < severityWords.size(); ++severity) {
        for (const Change& change : all_) {
            if (static_cast<std::size_t>(change.severity) == severity) {
                report.append(severityWords[severity]).append(" ").append(change.id);
                report.append(visible(" '" + change.item + "': " + change.what)).append("\n");
            }
        }
    }
    return report;
}

}  // namespace vocabulary
