// The modern face, linked with the shared library alone, as a tool is.

#include "zarn/typed.h"

#include <gmock/gmock.h>

#include <cmath>

namespace zarn_3_3 {
namespace {

using testing::ElementsAre;

static_assert(std::is_nothrow_move_constructible_v<ParseOutcome>);
static_assert(std::is_nothrow_move_assignable_v<Parser> && !std::is_copy_assignable_v<Parser>);

ParseOutcome parse(Parser& parser, std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "tool");
    return parser.parse(static_cast<int>(arguments.size()), arguments.data());
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

class Typed : public testing::Test {
protected:
    Typed() {
        parser.declare({option<int>("level,l", "").byDefault(7),
                        option<std::string>("include,i", ""),
                        option("verbose,v", ""),
                        positional<const char*>("file", "").whole()});
    }
    Parser parser{flagUnknownIsError | flagPositionalWithoutDash};
};

TEST_F(Typed, ReadsDefaultsWhereNothingIsGiven) {
    const Result result = parse(parser, {}).result;
    EXPECT_EQ(origin(result, "l"), Origin::byDefault);
    EXPECT_EQ(origin(result, "include"), Origin::absent);
    EXPECT_FALSE(isGiven(result, "level"));
    EXPECT_EQ(get<bool>(result, "verbose"), std::nullopt);
    EXPECT_THAT(values<int>(result, "level"), ElementsAre(7));
    EXPECT_TRUE(occurrences(result, {"level"}).empty() && arguments(result).empty());
    EXPECT_EQ(valueOr(result, "level", 3), 7);
    EXPECT_STREQ(valueOr(result, "include", "none"), "none");
}

TEST_F(Typed, ReadsWhatIsGivenAndCanBeRead) {
    const auto line = parse(parser, {"--level=7,-2", "-v", "-l=9", "a,b", "-v", "", "--", "c"});
    EXPECT_EQ(origin(line.result, "level"), Origin::given);
    EXPECT_TRUE(isGiven(line.result, "verbose"));
    EXPECT_EQ(get<int>(line.result, "l"), 7);
    EXPECT_EQ(getLast<long long>(line.result, "level"), 9);
    EXPECT_THAT(values<unsigned>(line.result, "level"), ElementsAre(7u, 9u));
    EXPECT_THAT(values<bool>(line.result, "verbose"), ElementsAre(true, true));
    EXPECT_THAT(values<std::string_view>(line.result, "file"), ElementsAre("a,b"));
    EXPECT_THAT(arguments<std::string>(line.result), ElementsAre("c"));
}

TEST_F(Typed, KeepsTheValuesOfEachOccurrenceTogether) {
    const auto line = parse(parser, {"-i=a,b", "-v", "x", "--level=1", "-i=c", "", "-l=2,3"});
    std::string shown;
    for (const Occurrence& each :
         occurrences(line.result, {"level", "i", "verbose", "file", "include", "nowhere"})) {
        shown += std::string(each.name) + '(';
        for (const Value& value : each.values) {
            EXPECT_EQ(value.position - each.position, &value - each.values.data() + 1);
            EXPECT_TRUE(isGiven(line.result, "level")) << "asking meanwhile does no harm";
            shown += get<std::string>(value).value() + ' ';
        }
        shown += ')';
    }
    EXPECT_EQ(shown, "i(a b )verbose()file(x )level(1 )i(c )file()level(2 3 )");
}

TEST_F(Typed, OutcomeTellsWhyAParseFailed) {
    ParseOutcome line = parse(parser, {"--level=1", "--nowhere", "--level=2"});
    EXPECT_FALSE(line);
    EXPECT_EQ(line.code, resultRuleBroken);
    EXPECT_EQ(line.text, "Unknown option: --nowhere");
    EXPECT_THAT(values<int>(line.result, "level"), ElementsAre(1)) << "what came before is kept";
    line = parser.parseStream("--level=3\n--level=4", std::move(line.result));
    EXPECT_TRUE(line && line.text.empty());
    EXPECT_THAT(values<int>(line.result, "level"), ElementsAre(1, 3, 4));
    line = parser.parseStream("--level=5\n--nowhere");
    EXPECT_EQ(line.text, "Unknown option: --nowhere");
    EXPECT_THAT(values<int>(line.result, "level"), ElementsAre(5));
    line = parse(parser, {});
    EXPECT_TRUE(line && line.text.empty());
}

TEST_F(Typed, LambdasHearAsLongAsTheyLive) {
    std::string heard;
    {
        const OnOption all(parser, [&](std::string_view name) { heard += name; });
        const OnValue not2(parser, [](const char*, const Value& v) { return get<int>(v) != 2; });
        const OnUnknown unknown(parser, [&](const char* name) { return (heard += name).empty(); });
        EXPECT_TRUE(parse(parser, {"--level=1", "--new", "-v"}));
        EXPECT_EQ(parse(parser, {"--level=2"}).code, resultVetoed);
    }
    const OnUnknown deaf(parser, [](std::string_view) {});
    EXPECT_EQ(parse(parser, {"--level=2", "--new"}).code, resultRuleBroken);
    EXPECT_EQ(heard, "level--newverboselevel");
}

struct FailingResult final : IParseResult {
    void destroy() override { delete this; }
    bool present(const char*, int, int) override { return true; }
    Value get(const char*, int, int) override {
        Value failed;
        failed.status = statusException;
        return failed;
    }
    Value next(const char*) override { return {}; }
    int nextPosition() override { return 0x7fffffff; }
    int getFirstArgument(const char**) override { return statusException; }
    int getNextArgument(const char**) override { return statusException; }
};

TEST(Reading, ThrowsWhenAQueryFailsInside) {
    const Result result(new FailingResult);
    EXPECT_THROW(get<int>(result, "x"), std::bad_alloc);
    EXPECT_THROW(occurrences(result, {"x"}), std::bad_alloc);
    EXPECT_THROW(arguments(result), std::bad_alloc);
}

TEST(Declare, SaysWhatThePlainInterfaceWould) {
    Parser typed(flagValuesStayWhole);
    typed.declare({action("run,r", "Runs."), option<bool>("color", "").byDefault(false)});
    typed.declare("more:More",
                  {modifier<std::string>("tone", "run", "Loud.")
                       .whole()
                       .byDefault(std::string("low"))
                       .allow({"low", "high"})
                       .deprecate("lo", "low"),
                   modifier<unsigned>("n", "run", "").allow({1, 2}),
                   option<double>("ratio", "").cutAt(':')});
    Parser plain(flagValuesStayWhole);
    plain->action("run,r", "Runs.", vtNull, "");
    plain->option("color", "", vtBool, "").defaultValue(false);
    IOption& tone = plain->modifier("tone", "run", "Loud.", vtString, "more:More");
    tone.allowValue("low").allowValue("high").allowDeprecatedValue("lo", "low");
    tone.defaultValue("low").tokenize(0);
    plain->modifier("n", "run", "", vtU32, "more").allowValue(1u).allowValue(2u);
    plain->option("ratio", "", vtDouble, "more").tokenize(':');

    EXPECT_STREQ(typed->getActionModifiersDescription("run", false),
                 plain->getActionModifiersDescription("run", false));
    for (const char* name : {"run", "tone", "n", "ratio", "color"}) {
        EXPECT_STREQ(typed->getDescription(name, false), plain->getDescription(name, false));
    }
    for (const char* argument : {"--tone=lo", "--tone=low,high", "-n=1,2", "--ratio=1:2", "-n=x"}) {
        const ParseOutcome left = parse(typed, {"--run", argument});
        const ParseOutcome right = parse(plain, {"--run", argument});
        EXPECT_EQ(left.text, right.text);
        for (const char* name : {"tone", "n", "ratio", "color"}) {
            EXPECT_EQ(values<std::string>(left.result, name),
                      values<std::string>(right.result, name));
        }
    }
}

}  // namespace
}  // namespace zarn_3_3
