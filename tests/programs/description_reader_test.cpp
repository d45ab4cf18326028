// What is read of a description, and what is said of a text that is none.

#include "description_reader.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace vocabulary {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* everyKey = PROGRAMS_DATA "/every_key.1.json";

TEST(DescriptionReader, ReadsEveryKeyOfTheFirstFormat) {
    const Description sonde = readDescriptionFile(everyKey);

    EXPECT_EQ(sonde.name, "sonde");
    EXPECT_EQ(sonde.version, "2.1");
    EXPECT_EQ(sonde.summary, "look into \"archives\"\b\f\n\r\x1b\xef\xbf\xbd");
    EXPECT_EQ(sonde.flags, 2);
    ASSERT_EQ(sonde.sections.size(), 2U);
    EXPECT_EQ(sonde.sections[1].key, "numbers");
    EXPECT_EQ(sonde.sections[1].title, "Numbers");
    EXPECT_THAT(sonde.groups, ElementsAre(ElementsAre("list", "pack"), ElementsAre("list")));
    ASSERT_EQ(sonde.items.size(), 14U);
    EXPECT_EQ(sonde.items[0].kind, Kind::action);

    const Item& level = sonde.items[2];
    EXPECT_THAT(level.names, ElementsAre("level", "l"));
    EXPECT_EQ(level.kind, Kind::modifier);
    EXPECT_EQ(level.type, Type::text);
    EXPECT_EQ(level.help, "How \\ hard.\tZw\xc3\xb6lf");
    EXPECT_EQ(level.section, "zarn_hidden");
    EXPECT_TRUE(level.isHidden);
    EXPECT_THAT(level.tags, ElementsAre("list", "pack"));
    EXPECT_THAT(level.values, ElementsAre("fast", ""));
    ASSERT_EQ(level.deprecated.size(), 1U);
    EXPECT_EQ(level.deprecated[0].value, "slow");
    EXPECT_EQ(level.deprecated[0].replacement, "fast");
    EXPECT_EQ(level.separator, ",");

    EXPECT_EQ(sonde.items[3].valueName, "FILE");
    EXPECT_TRUE(sonde.items[3].isPositional);
    EXPECT_FALSE(sonde.items[3].isOptionFile);
    EXPECT_TRUE(sonde.items[4].isOptionFile);
    EXPECT_EQ(sonde.items[5].defaultValue, "-1234567");
}

TEST(DescriptionReader, SkipsWhatItDoesNotKnowAndMissesNothingElse) {
    const Description least = readDescription(R"({"format": 1, "later": {"a": [1]}})", "x");
    EXPECT_THAT(least.items, IsEmpty());
    EXPECT_EQ(least.flags, 0);

    const Description jq =
        readDescription(R"({"items": [{"kind": "option", "new": 1}], "format": 1})", "x");
    ASSERT_EQ(jq.items.size(), 1U);
    EXPECT_THAT(jq.items[0].names, IsEmpty());
}

TEST(DescriptionReader, SaysWhatIsWrongAndWhere) {
    const struct {
        const char* text;
        const char* error;
    } rows[] = {
        {"",                                                 "x: line 1: is no JSON"                                            },
        {"{\"format\": 1,\n\n\"name\": \"a\xff\"}",          "x: line 3: is no JSON"                                            },
        {"{\"format\": 1}\n}",                               "x: line 2: is no JSON"                                            },
        {"[]",                                               "x: is no description of a tool: there is no key 'format'"         },
        {"{}",                                               "x: is no description of a tool: there is no key 'format'"         },
        {R"({"format": 2})",                                 "x: /format: is a newer format than this program knows, which is 1"},
        {R"({"format": 0})",                                 "x: /format: there is no format 0"                                 },
        {R"({"format": "1"})",                               "x: /format: must be a whole number from 0 to 2147483647"          },
        {R"({"format": 1, "flags": -1})",                    "x: /flags: must be a whole number from 0 to 2147483647"           },
        {R"({"format": 1, "flags": 2147483648})",
         "x: /flags: must be a whole number from 0 to 2147483647"                                                               },
        {R"({"format": 1, "name": 1})",                      "x: /name: must be a text"                                         },
        {R"({"format": 1, "items": {}})",                    "x: /items: must be a list"                                        },
        {R"({"format": 1, "items": [{}, 1]})",               "x: /items/1: must be an object"                                   },
        {R"({"format": 1, "items": [{"names": ["a", 1]}]})", "x: /items/0/names/1: must be a text"                              },
        {R"({"format": 1, "items": [{"hidden": 1}]})",       "x: /items/0/hidden: must be true or false"                        },
        {R"({"format": 1, "items": [{"kind": "verb"}]})",
         "x: /items/0/kind: must be 'action', 'modifier' or 'option'"                                                           },
        {R"({"format": 1, "items": [{"type": "float"}]})",
         "x: /items/0/type: is no type that is known"                                                                           },
        {R"({"format": 1, "groups": [1]})",                  "x: /groups/0: must be a list"                                     },
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        try {
            readDescription(row.text, "x");
            ADD_FAILURE() << "is taken";
        } catch (const UnreadableDescription& error) {
            EXPECT_STREQ(error.what(), row.error);
        }
    }
    EXPECT_THROW(readDescriptionFile("/nonexistent/a.json"), UnreadableDescription);
    EXPECT_THROW(readDescriptionFile("/"), UnreadableDescription);
}

}  // namespace
}  // namespace vocabulary
