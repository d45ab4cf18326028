// What is told of two descriptions, row by row of diff.rows.

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "comparison.h"
#include "description_reader.h"

namespace vocabulary {
namespace {

// The members of a description, or its items alone.
Description described(const std::string& text) {
    const std::string members = text.front() == '[' ? R"("flags":2,"items":)" + text : text;
    return readDescription(R"({"format":1,)" + members + "}", "row");
}

std::string reportOf(const std::string& before,
                     const std::string& after,
                     const std::set<std::string>& ignored = {}) {
    Changes changes(ignored);
    compare(described(before), described(after), changes);
    return changes.report();
}

struct Row {
    std::string before;
    std::string after;
    std::string report;
};

std::vector<Row> readRows() {
    std::ifstream file(PROGRAMS_DATA "/diff.rows");
    std::vector<Row> rows;
    bool isBetween = true;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') {
            isBetween = true;
        } else if (isBetween) {
            rows.push_back({line, "", ""});
            isBetween = false;
        } else if (rows.back().after.empty()) {
            rows.back().after = line;
        } else {
            rows.back().report += line + "\n";
        }
    }
    return rows;
}

TEST(Diff, TellsWhatEachRowSays) {
    const std::vector<Row> rows = readRows();
    EXPECT_GT(rows.size(), 60U);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.before + "\n" + row.after);
        EXPECT_EQ(reportOf(row.before, row.after), row.report);
        EXPECT_EQ(reportOf(row.before, row.before), "");
        EXPECT_EQ(reportOf(row.after, row.after), "");
    }
}

TEST(Diff, WhatIsIgnoredLeavesNoTrace) {
    const std::string before = R"([{"names":["a\nb"]},{"names":["c"],"help":"C"},{"names":["d"]}])";
    const std::string after = R"([{"names":["c"]}])";
    EXPECT_EQ(reportOf(before, after, {"item-gone:d", "help-changed"}),
              "breaking item-gone 'a\\x0ab': it is not there any more\n");
    EXPECT_EQ(reportOf(before, after, {"item-gone"}),
              "text help-changed 'c': it has another description\n");
}

}  // namespace
}  // namespace vocabulary
