// What pages say about a tool, and when they say it.

#include "document.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <fstream>
#include <utility>

#include "description_reader.h"
#include "markdown_writer.h"
#include "output.h"
#include "page_text.h"
#include "support/scratch_folder.h"

namespace vocabulary {
namespace {

using testing::HasSubstr;
using testing::Not;

struct PageCase {
    const char* description;  // what stands behind the format
    const char* said;
    const char* unsaid;
};

#define ITEM \
    R"("items": [{"names": ["x"], "type": "text"}, {"names": ["f"], "type": "int32", "kind")"

const PageCase pageCases[] = {
    {R"("name": "t")",                                                                                     "`t`\n",                           "Options"          },
    {ITEM R"(: "option"}])",                                                                               "\\[*options*\\]\n",               "`--`"             },
    {ITEM R"(: "option", "positional": true}])",                                                           "\\[*options*\\] \\[*f* ...\\]",   "`--`"             },
    {ITEM R"(: "option", "positional": true}], "flags": 4)",
     "\\[`--`\\] \\[*f* ...\\]",                                                                                                              "before the"       },
    {ITEM R"(: "option", "positional": true}], "flags": 16)",                                              "before the first",                "`--`"             },
    {ITEM R"(: "action"}])",                                                                               " `-f` *INTEGER* \\[*options*\\]", "One action"       },
    {ITEM R"(: "option", "hidden": true}])",                                                               "`-x`",                            "`-f`"             },
    {ITEM R"(: "action", "hidden": true, "tags": ["f"]},
        {"names": ["m"], "kind": "modifier", "tags": ["f"]}])",
     "`-x`",                                                                                                                                  "`-m`"             },
    {ITEM R"(: "action", "tags": ["f"]}, {"names": ["g"], "kind": "action", "hidden": true},
        {"names": ["m"], "kind": "modifier", "tags": ["f", "g"]}], "groups": [["f", "g"]])",
     "| `-m` |  | `-f` |",                                                                                                                    "`-g`"             },
    {R"("name": "t", "summary": "- x # y")",                                                               "\n\\- x \\# y\n",                 "Options"          },
    {R"("name": "t", "summary": "1. x")",                                                                  "\n1\\. x\n",                      "Options"          },
    {R"("items": [{"names": []}])",                                                                        "no options",                      "Options"          },
    {R"("items": [{"names": ["long", "l"], "type": "double"}])",
     "`-l`, `--long` *NUMBER* |",                                                                                                             "Default"          },
    {R"("items": [{"names": ["c"], "type": "boolean", "default": "1"}])",
     "| `-c`, `--no-c` |  | `-c` |",                                                                                                          "Sep"              },
    {R"("items": [{"names": ["c"], "type": "boolean", "default": "0"}])",
     " | `--no-c` |",                                                                                                                         "negative"         },
    {R"("items": [{"names": ["c"], "type": "text", "values": ["a", ""], "separator": "|",
        "deprecated": [{"value": "o", "replacement": "a"}]}])",
     "| `a`, <code></code> | <code>&#124;</code> | `o` (use `a`) |",                                                                          "negative"         },
    {ITEM R"(: "option", "positional": true}])",                                                           "| *f* |  | `-f` |",               "negative"         },
    {ITEM R"(: "option", "positional": true}, {"names": ["g"], "positional": true}])",
     "\\[*f*\\] \\[*g* ...\\]",                                                                                                               "By name"          },
    {R"("items": [{"names": ["o"]}, {"names": ["a"], "kind": "action"}, {"names": ["s"], "section": "k"},
        {"names": ["p"], "section": "z", "hidden": true}], "sections": [{"key": "k", "title": "Title #"}, {"key": "z"}])",
     "### Actions\n\n| Option | Meaning |\n|---|---|\n| `-a` |  |\n\n### Options\n\n| Option | "
     "Meaning |\n"
     "|---|---|\n| `-o` |  |\n\n### Title \\#\n",                                                                                             "### z"            },
    {ITEM R"(: "action"}, {"names": ["g"], "kind": "action"}], "groups": [["f", "g"], ["f"]])",
     "go together: `-f`, `-g`.",                                                                                                              "stands in a list" },
    {R"("items": [{"names": ["n"], "type": "int32", "values": ["1"]}])",
     "`-n=-5`",                                                                                                                               "stands in a list" },
    {R"("items": [{"names": ["c"], "type": "text", "values": ["a"]}])",
     "that stands in a list",                                                                                                                 "says the opposite"},
    {ITEM R"(: "option"}])",                                                                               "`-f=-5`",                         "As an argument"   },
    {ITEM R"(: "option", "positional": true}], "flags": 4)",
     "As an argument, a negative number stands behind `--`",                                                                                  "`-f=-5`"          },
    {R"("items": [{"names": ["c"], "type": "text", "optionFile": true}])",
     "named with `-c` holds",                                                                                                                 "opposite"         },
};

TEST(Document, SaysWhatTheToolHasAndNothingElse) {
    for (const PageCase& row : pageCases) {
        const std::string description = std::string(R"({"format": 1, )") + row.description + "}";
        SCOPED_TRACE(description);
        const std::string page = asMarkdown(documentOf(readDescription(description, "x")));
        EXPECT_THAT(page, HasSubstr(row.said));
        EXPECT_THAT(page, Not(HasSubstr(row.unsaid)));
    }
}

TEST(PageText, ReplacesWhatIsNoCharacter) {
    const std::pair<const char*, std::u32string> rows[] = {
        {"a\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80", U"a\u00e9\u4e2d\U0001f600" },
        {"\xc3",                                  U"\ufffd"                  },
        {"\xc3(\xe4\xb8(",                        U"\ufffd(\ufffd\ufffd("    },
        {"\xc1\xbf\x80",                          U"\ufffd\ufffd\ufffd"      },
        {"\xed\xbf\xbf",                          U"\ufffd\ufffd\ufffd"      },
        {"\xf4\x90\x80\x80",                      U"\ufffd\ufffd\ufffd\ufffd"},
    };
    for (const auto& [bytes, characters] : rows) {
        EXPECT_EQ(decoded(bytes), characters) << testing::PrintToString(bytes);
    }
}

TEST(Output, LeavesTheFilesOfOthersAlone) {
    const zarn_3_3::testing_support::ScratchFolder folder;
    const std::string directory = "./";
    const std::string taken = directory + ".zarn-vocabulary-" + std::to_string(getpid()) + "-0";
    std::ofstream(taken) << "of others";

    writeToFile(directory + "page", "text");

    std::ifstream file(taken);
    std::string left;
    std::getline(file, left);
    EXPECT_EQ(left, "of others");
}

}  // namespace
}  // namespace vocabulary
