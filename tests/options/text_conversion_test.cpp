#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "options/option_description.h"
#include "support/assertion_double.h"

namespace zarn_3_3 {
namespace {

OptionDescription ofType(das_variant_type_t type) {
    OptionDescription option;
    option.type = type;
    return option;
}

struct Reading {
    das_variant_type_t type;
    const char* text;
    variant_t value;  // vtNull: refused
};

const Reading readings[] = {
    {vtBool,   "1",                    true                      },
    {vtBool,   "true",                 {}                        },
    {vtS32,    " 42 ",                 42                        },
    {vtS32,    "42x",                  {}                        },
    {vtS32,    "2147483648",           {}                        },
    {vtU32,    "-1",                   4294967295U               },
    {vtS64,    "-9223372036854775808", -9223372036854775807LL - 1},
    {vtU64,    "0x1F",                 31ULL                     },
    {vtU64,    "1fH",                  31ULL                     },
    {vtU64,    "1F",                   1ULL                      },
    {vtU64,    "12abc",                12ULL                     },
    {vtU64,    "0x1G",                 0ULL                      },
    {vtU64,    "0x1h",                 0ULL                      },
    {vtU64,    "0x",                   {}                        },
    {vtU64,    "-1h",                  18446744073709551615ULL   },
    {vtU64,    "ffffffffffffffffh",    18446744073709551615ULL   },
    {vtU64,    "0x10000000000000000",  {}                        },
    {vtDouble, "1e-400",               0.0                       },
    {vtDouble, "0.1",                  0.1                       },
    {vtString, " a,b ",                " a,b "                   },
    {vtNull,   "1",                    {}                        },
};

TEST(FromString, ReadsTheDeclaredTypeWhole) {
    for (const Reading& reading : readings) {
        SCOPED_TRACE(std::to_string(reading.type) + " '" + reading.text + "'");
        const variant_t value = ofType(reading.type).fromString(reading.text);

        EXPECT_TRUE(value == reading.value);
        EXPECT_EQ(value.type(), reading.value.type() == vtNull ? vtNull : reading.type);
    }
    EXPECT_THROW(ofType(vtU64).fromString(""), std::out_of_range);
}

struct Writing {
    das_variant_type_t type;
    const char* typeName;
    variant_t value;
    const char* text;
    const char* assertion;  // empty: the value can be read so
};

const Writing writings[] = {
    {vtBool,   "undefined",        true,                    "1",           ""            },
    {vtBool,   "undefined",        7,                       "1",           ""            },
    {vtU32,    "unsigned integer", 4294967295U,             "4294967295",  ""            },
    {vtS64,    "64 bit integer",   -5LL,                    "-5",          ""            },
    {vtDouble, "double",           0.1,                     "0.1",         ""            },
    {vtDouble, "double",           1234567.0,               "1.23457e+06", ""            },
    {vtDouble, "double",           18446744073709551615ULL, "1.84467e+19", ""            },
    {vtString, "string",           "a b",                   "a b",         ""            },
    {vtString, "string",           variant_t("lent",        true),         "lent",         ""},
    {vtString,        "string",                   5,                           "",                     "can_get<const char*>()"      },
    {vtString,        "string",                   {},                           "",                    "can_get<const char*>()"},
    {vtS32,        "integer",                      5LL,                             "5",                  "can_get<s32_t>()" },
    {vtU32,        "unsigned integer",                      5LL,                    "5",         "can_get<u32_t>()"},
    {vtNull,        "",                     5,                                   "",                           ""     },
};

TEST(ToString, WritesWhatTheDeclaredTypeReads) {
    for (const Writing& writing : writings) {
        SCOPED_TRACE(std::string(writing.typeName) + " '" + writing.text + "'");
        takeAssertions();
        const OptionDescription option = ofType(writing.type);

        EXPECT_EQ(option.toString(writing.value), writing.text);
        EXPECT_EQ(option.getTypeName(), writing.typeName);
        const auto assertions = takeAssertions();
        EXPECT_EQ(assertions.empty() ? "" : assertions.front(), writing.assertion);
    }
}

}  // namespace
}  // namespace zarn_3_3
