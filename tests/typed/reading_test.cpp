// How values are read, linked with the shared library alone, as a tool is.

#include <gmock/gmock.h>

#include <cmath>

#include "typed/tool_under_test.h"

namespace zarn_3_3 {
namespace {

using testing::ElementsAre;

static_assert(std::is_nothrow_move_constructible_v<Result>);
static_assert(std::is_nothrow_move_assignable_v<Parser> && !std::is_copy_assignable_v<Parser>);

Result parse(Parser& parser, std::initializer_list<const char*> arguments) {
    const Line line(arguments);
    return parser.parse(line.argc(), line.argv());
}

template <typename T>
std::string nameIfRead(const Value& value, const char* name) {
    const std::optional<T> read = get<T>(value);
    EXPECT_TRUE(!read || *read != *read || variant_t(*read) == value.value) << name;
    return read ? name : "";
}

TEST(Get, ReadsANumberAsEveryTypeThatHoldsIt) {
    constexpr double two63 = 9223372036854775808.0;
    const std::pair<variant_t, const char*> numbers[] = {
        {true,                    "bool s32 u32 s64 u64 double"},
        {1.0,                     "bool s32 u32 s64 u64 double"},
        {2,                       "s32 u32 s64 u64 double"     },
        {-1,                      "s32 s64 double"             },
        {2147483648u,             "u32 s64 u64 double"         },
        {9007199254740993ll,      "s64 u64 "                   },
        {9223372036854775807ll,   "s64 u64 "                   },
        {18446744073709551615ull, "u64 "                       },
        {two63,                   "u64 double"                 },
        {2 * two63,               "double"                     },
        {0.5,                     "double"                     },
        {NAN,                     "double"                     },
        {"1",                     ""                           },
    };
    for (const auto& [number, names] : numbers) {
        const Value value("as typed", number, 1);
        EXPECT_EQ(nameIfRead<bool>(value, "bool ") + nameIfRead<int>(value, "s32 ") +
                      nameIfRead<unsigned>(value, "u32 ") + nameIfRead<long>(value, "s64 ") +
                      nameIfRead<unsigned long long>(value, "u64 ") +
                      nameIfRead<double>(value, "double"),
                  names);
        EXPECT_EQ(get<std::string>(value), "as typed");
    }
}

// Of each width the smallest and the greatest number, and the first on either side.
struct Width {
    std::string (*read)(const char* text);
    const char* least;
    const char* tooSmall;
    const char* greatest;
    const char* tooGreat;
};

template <typename T>
std::string readAs(const char* text) {
    T variable{};
    Parser parser;
    parser.declare({option<T>("x", "").into(variable)});
    const Result result = parse(parser, {(std::string("-x=") + text).c_str()});
    if (!result) {
        const std::string message = result.text();
        return message.substr(message.rfind(": ") + 2);
    }
    if constexpr (internal::isConverted<T>) {
        return Conversion<T>::write(variable);
    } else {
        std::ostringstream out;
        out << +variable;
        return out.str();
    }
}

TEST(Conversions, HoldWhatTheirTypesHold) {
    const Width widths[] = {
        {readAs<signed char>,        "-128",          "-129",                 "127",                  "128"                 },
        {readAs<unsigned char>,      "0",             "-1",                   "255",                  "256"                 },
        {readAs<short>,              "-32768",        "-32769",               "32767",                "32768"               },
        {readAs<unsigned short>,     "0",             "-1",                   "65535",                "65536"               },
        {readAs<int>,                "-2147483648",   "-2147483649",          "2147483647",           "2147483648"          },
        {readAs<unsigned>,           "0",             "-1",                   "4294967295",           "4294967296"          },
        {readAs<long>,
         "-9223372036854775808",                      "-9223372036854775809",
         "9223372036854775807",                                                                       "9223372036854775808" },
        {readAs<unsigned long long>, "0",             "-1",                   "18446744073709551615", "18446744073709551616"},
        {readAs<float>,              "-3.40282e+38",  "-4e38",                "3.40282e+38",          "4e38"                },
        {readAs<double>,             "-1.79769e+308", "-2e308",               "1.79769e+308",         "2e308"               },
    };
    for (const Width& width : widths) {
        const std::string range =
            std::string("it must be between ") + width.least + " and " + width.greatest;
        EXPECT_EQ(width.read(width.least), width.least);
        EXPECT_EQ(width.read(width.greatest), width.greatest);
        EXPECT_EQ(width.read(width.tooSmall), range) << width.tooSmall;
        EXPECT_EQ(width.read(width.tooGreat), range) << width.tooGreat;
    }
    // Read as the greatest number: "at most 8" would confuse who has written -1.
    Parser parser;
    parser.declare({option<unsigned>("x", "").atMost(8)});
    EXPECT_THAT(std::string(parse(parser, {"-x=-1"}).text()),
                testing::EndsWith("it must be between 0 and 8"));
}

TEST(Conversions, OfQuantitiesAndCharactersAreExact) {
    using Days = std::chrono::duration<int, std::ratio<86400>>;
    using Nanoseconds = std::chrono::nanoseconds;
    using Seconds = std::chrono::duration<long, std::ratio<1>>;
    using Real = std::chrono::duration<double>;
    constexpr const char* noDuration =
        "it must be a number with a unit, as in 250ms, 10s, 5m or 1.5h";
    constexpr const char* noNumber = "it must be a number, as in 31, 0x1F or 1fh";
    constexpr const char* noBytes = "it must be a number of bytes, as in 4096, 64K, 2MiB or 1.5GB";
    const struct {
        std::string (*read)(const char* text);
        const char* text;
        const char* expected;
    } rows[] = {
        {readAs<char>,        "\xE9",                  "\xE9"                                    },
        {readAs<char>,        "\xC3\xA9",              "it must be one ASCII character"          },
        {readAs<Seconds>,     "0s",                    "0s"                                      },
        {readAs<Seconds>,     "1.5h",                  "5400s"                                   },
        {readAs<Seconds>,     "1.250min",              "75s"                                     },
        {readAs<Seconds>,     "2m",                    "120s"                                    },
        {readAs<Seconds>,     "3000ms",                "3s"                                      },
        {readAs<Seconds>,     "1500ms",                "it must be a whole number of s"          },
        {readAs<Seconds>,     "0.5s",                  "it must be a whole number of s"          },
        {readAs<Seconds>,     "9223372036854775807s",  "9223372036854775807s"                    },
        {readAs<Seconds>,     "9223372036854775808s",  "it must be at most 9223372036854775807s" },
        {readAs<Seconds>,     "18446744073709551616s", noDuration                                },
        {readAs<Nanoseconds>, "0.000000001s",          "1ns"                                     },
        {readAs<Nanoseconds>, "1.000000001d",          "86400000086400ns"                        },
        {readAs<Nanoseconds>, "0.0000000001s",         noDuration                                },
        {readAs<Nanoseconds>, "300000d",               "it must be at most 9223372036854775807ns"},
        {readAs<Nanoseconds>, "3us",                   "3000ns"                                  },
        {readAs<Days>,        "36h",                   "it must be a whole number of d"          },
        {readAs<Days>,        "0.0001us",              "it must be a whole number of d"          },
        {readAs<Days>,        "48h",                   "2d"                                      },
        {readAs<Real>,        "250ms",                 "0.25s"                                   },
        {readAs<Real>,        "x",                     noDuration                                },
        {readAs<Seconds>,     "10",                    noDuration                                },
        {readAs<Seconds>,     "s",                     noDuration                                },
        {readAs<Seconds>,     "1.s",                   noDuration                                },
        {readAs<Seconds>,     "-1s",                   noDuration                                },
        {readAs<Bytes>,       "0",                     "0"                                       },
        {readAs<Bytes>,       "4096B",                 "4K"                                      },
        {readAs<Bytes>,       "1.5KiB",                "1536"                                    },
        {readAs<Bytes>,       "2MB",                   "2000000"                                 },
        {readAs<Bytes>,       "15E",                   "15E"                                     },
        {readAs<Bytes>,       "16E",                   "it must be at most 18446744073709551615" },
        {readAs<Bytes>,       "15.9999999999E",        noBytes                                   },
        {readAs<Bytes>,       "18446744073709551615",  "18446744073709551615"                    },
        {readAs<Bytes>,       "0.3",                   "it must be a whole number of bytes"      },
        {readAs<Bytes>,       "1KiBi",                 noBytes                                   },
        {readAs<Bytes>,       "1Z",                    noBytes                                   },
        {readAs<Bytes>,       "K",                     noBytes                                   },
        {readAs<std::size_t>, "12abc",                 noNumber                                  },
        {readAs<std::size_t>, "4 ",                    "4"                                       },
        {readAs<std::size_t>, "0x1F",                  "31"                                      },
        {readAs<std::size_t>, "1fh",                   "31"                                      },
        {readAs<std::size_t>, "1fhx",                  noNumber                                  },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.read(row.text), row.expected) << row.text;
    }
    EXPECT_STREQ(internal::unitOf(7), "");
}

// Of what is no number at all the range has nothing to say.
TEST(Conversions, TellTheRangeOfNumbersAlone) {
    const struct {
        std::string (*read)(const char* text);
        const char* text;
        const char* type;
    } rows[] = {
        {readAs<int>,    "1.5",    "integer"},
        {readAs<int>,    "1e3",    "integer"},
        {readAs<int>,    "1-2",    "integer"},
        {readAs<double>, "1.2.3",  "double" },
        {readAs<double>, "1-2",    "double" },
        {readAs<double>, "1e999x", "double" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.read(row.text),
                  std::string("Option 'x' can not parse '") + row.text +
                      "' value, requires a type '" + row.type + "' here.");
    }
}

class Reading : public testing::Test {
protected:
    Reading() {
        parser.declare({option<int>("level,l", "").cutAt(',').byDefault(7),
                        option<std::string>("include,i", "").cutAt(','),
                        option<int>("count", "").allow({1, 2}).deprecate(9, 2),
                        option("verbose,v", ""),
                        positional<const char*>("file", "")});
    }
    Parser parser;
};

TEST_F(Reading, GivesDefaultsWhereNothingIsGiven) {
    const Result result = parse(parser, {});
    EXPECT_FALSE(result.isGiven("level"));
    EXPECT_EQ(result.get<bool>("verbose"), std::nullopt);
    EXPECT_THAT(result.values<int>("level"), ElementsAre(7));
    EXPECT_TRUE(result.occurrences({"level"}).empty() && result.arguments().empty());
    EXPECT_EQ(result.valueOr("level", 3), 7);
    EXPECT_STREQ(result.valueOr("include", "none"), "none");
}

TEST_F(Reading, GivesWhatIsGivenAndCanBeRead) {
    const Result result = parse(parser, {"--level=7,-2", "-v", "-l=9", "a,b", "-v", "--", "c"});
    EXPECT_TRUE(result.isGiven("verbose"));
    EXPECT_EQ(result.get<long long>("l"), 9);
    EXPECT_EQ(result.get<const char*>("level"), std::string("9"));
    EXPECT_EQ(result.get<Mode>("file"), std::nullopt);
    EXPECT_THAT(result.values<unsigned>("level"), ElementsAre(7u, 9u));
    EXPECT_THAT(result.values<bool>("verbose"), ElementsAre(true, true));
    EXPECT_THAT(result.values<std::string_view>("file"), ElementsAre("a,b", "c"));
    EXPECT_THAT(result.arguments<std::string>(), ElementsAre("c"));
    EXPECT_EQ(parse(parser, {"--count=9"}).get<int>("count"), 2);
    EXPECT_EQ(result->getFirstArgument(nullptr), statusException);
}

TEST_F(Reading, KeepsTheValuesOfEachOccurrenceTogether) {
    const Result result =
        parse(parser, {"-i=a,b", "-v", "x", "--level=1", "-i=c", "-l=2,3", "--count=9"});
    std::string shown;
    for (const Occurrence& each :
         result.occurrences({"level", "i", "verbose", "file", "include", "count"})) {
        shown += std::string(each.name) + '(';
        for (const Value& value : each.values) {
            EXPECT_EQ(value.position - each.position, &value - each.values.data() + 1);
            shown += get<std::string>(value).value() + ' ';
        }
        shown += ')';
    }
    EXPECT_EQ(shown, "i(a b )verbose()file(x )level(1 )i(c )level(2 3 )count(9 )");
    EXPECT_EQ(get<int>(result.occurrences({"count"})[0].values[0]), 2);
}

TEST_F(Reading, GoesOnAfterAFailure) {
    Result result = parse(parser, {"--level=1", "--nowhere", "--level=2"});
    EXPECT_FALSE(result);
    EXPECT_EQ(result.code(), resultRuleBroken);
    EXPECT_STREQ(result.text(), "Unknown option: --nowhere");
    EXPECT_THAT(result.values<int>("level"), ElementsAre(1)) << "what came before is kept";
    result = parser.parseStream("--level=3\n--level=4", std::move(result));
    EXPECT_TRUE(result && *result.text() == '\0');
    EXPECT_THAT(result.values<int>("level"), ElementsAre(1, 3, 4));
    result = parser.parseStream("--level=5\n--nowhere");
    EXPECT_THAT(result.values<int>("level"), ElementsAre(5));
}

TEST_F(Reading, OutlivesTheParser) {
    std::optional<Parser> gone(std::in_place);
    gone->declare({option<std::string>("tone", "").byDefault("low")});
    const Result result = parse(*gone, {"--tone=high"});
    gone.reset();
    EXPECT_EQ(result.get<std::string>("tone"), "high");
    EXPECT_THROW(static_cast<void>(result.isGiven("tune")), std::logic_error);
}

TEST_F(Reading, LambdasHearAsLongAsTheyLive) {
    std::string heard;
    {
        const OnOption all(parser, [&](std::string_view name) { heard += name; });
        const OnValue not2(parser, [](const char*, const Value& v) { return get<int>(v) != 2; });
        const OnUnknown unknown(parser, [&](const char* name) { return (heard += name).empty(); });
        EXPECT_TRUE(parse(parser, {"--level=1", "--new", "-v"}));
        EXPECT_EQ(parse(parser, {"--level=2"}).code(), resultVetoed);
    }
    const OnUnknown deaf(parser, [](std::string_view) {});
    EXPECT_EQ(parse(parser, {"--level=2", "--new"}).code(), resultRuleBroken);
    EXPECT_EQ(heard, "level--newverboselevel");
}

TEST(ReadingOf, ALineGoesOnBehindAParseInsideAHandler) {
    Parser parser;
    parser.declare({option<int>("level", "").between(1, 5),
                    option("nest", ""),
                    positional("from", ""),
                    positional<int>("to", "")});
    const OnOption nested(parser, [&](std::string_view name) {
        if (name == "nest") {
            EXPECT_EQ(parser.parseStream("--level=9").code(), resultVetoed);
        }
    });
    const Result result = parse(parser, {"here", "2", "--nest", "--new"});
    EXPECT_STREQ(result.text(), "Unknown option: --new");
    EXPECT_EQ(result.get<int>("to"), 2);
}

}  // namespace
}  // namespace zarn_3_3
