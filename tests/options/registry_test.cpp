#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "recognizers/abbreviation_parser.h"
#include "support/captured_stream.h"

namespace zarn_3_3 {
namespace {

using Names = std::vector<std::string>;

OptionDescription& declare(RegisteredOptionStorage& registry,
                           const char* names,
                           das_variant_type_t type = vtString,
                           const char* section = "") {
    return static_cast<OptionDescription&>(
        registry.option(names, nullptr, "", false, type, section));
}

struct Declaration {
    const char* earlier;
    das_variant_type_t earlierType;
    const char* names;
    bool isAccepted;
    bool isLogged;
};

const Declaration declarations[] = {
    {"e",     vtString, "a,b,cd",   true,  false},
    {"e",     vtString, "a,b,cde",  false, false},
    {"e",     vtString, "a,b,",     true,  false},
    {"e",     vtString, "a,b,,",    true,  false}, // the third is empty
    {"e",     vtString, "a,b,c,d",  false, false},
    {"e",     vtString, "e,b,cde",  false, false}, // too long comes before taken
    {"e",     vtString, "",         true,  false},
    {"",      vtString, "",         true,  false}, // no name is not a name that is taken
    {"e",     vtString, "e",        false, true },
    {"e",     vtString, "y,e",      false, true },
    {"e,alt", vtString, "alt",      false, true },
    {"e",     vtString, "E",        true,  false},
    {"e",     vtBool,   "no-e",     false, true },
    {"e,alt", vtBool,   "y,no-alt", false, true },
    {"e",     vtString, "no-e",     true,  false},
    {"no-e",  vtString, "e",        true,  false}, // one-sided
    {"no-e",  vtBool,   "no-no-e",  false, true },
};

TEST(Registry, RefusesNamesThatAreTakenOrTooMany) {
    for (const Declaration& declaration : declarations) {
        SCOPED_TRACE(std::string(declaration.earlier) + " then " + declaration.names);
        RegisteredOptionStorage registry;
        declare(registry, declaration.earlier, declaration.earlierType);
        const CapturedStream log(std::cout);
        internal::zarnLogEnabled = true;

        // A boolean, so that its "no-" form might clash as well.
        const OptionDescription& item = declare(registry, declaration.names, vtBool, "new:New");

        internal::zarnLogEnabled = false;
        EXPECT_EQ(&item == &registry.items().back(), declaration.isAccepted);
        EXPECT_EQ(item.result, declaration.isAccepted ? resultSuccess : resultFailure);
        EXPECT_EQ(registry.items().size(), declaration.isAccepted ? 2U : 1U);
        EXPECT_EQ(registry.sectionPairs().back().first, "new") << "refused or not";
        EXPECT_EQ(log.text(),
                  declaration.isLogged
                      ? "Tried to register an option with a name, which is alread registered: " +
                            std::string(declaration.names) + "\n"
                      : "");
    }
}

TEST(Registry, LetsSettingsOfRefusedDeclarationsVanish) {
    RegisteredOptionStorage registry;
    declare(registry, "x");
    declare(registry, "x").synonym("y").allowValue("v").tag("t").defaultValue("d").positional();

    const OptionDescription& sink = declare(registry, "x");

    EXPECT_THAT(sink.names, testing::IsEmpty());
    EXPECT_THAT(sink.allowedValues, testing::IsEmpty());
    EXPECT_THAT(sink.tags, testing::IsEmpty());
    EXPECT_FALSE(sink.hasDefault || sink.isPositional);
    EXPECT_EQ(sink.kind, kindSink);
    EXPECT_FALSE(registry.isDeclared("y", false, nullptr));
    EXPECT_EQ(registry.firstPositional(), internal::NameIndex::none);
}

TEST(Registry, KeepsTheTitleGivenFirstForASection) {
    RegisteredOptionStorage registry;
    for (const char* section : {"main:First", "other", "main:Second", "", "other:Late", "c:a:b"}) {
        declare(registry, std::to_string(registry.items().size()).c_str(), vtNull, section);
    }

    EXPECT_THAT(registry.sectionPairs(),
                testing::ElementsAre(testing::Pair("main", "First"),
                                     testing::Pair("other", ""),
                                     testing::Pair("", ""),
                                     testing::Pair("c", "a:b")));
    EXPECT_EQ(registry.sectionKey(registry.items()[2]), "main");
    EXPECT_TRUE(registry.isDeclared("2", false, "main"));
    EXPECT_FALSE(registry.isDeclared("2", false, "main:First"));
    EXPECT_FALSE(registry.isDeclared("2", true, "main"));
}

TEST(Registry, FindsTheFirstPositionalItemHoweverLateItBecomesOne) {
    RegisteredOptionStorage registry;
    declare(registry, "x");
    IOption& last = declare(registry, "y");
    EXPECT_EQ(registry.firstPositional(), internal::NameIndex::none);
    last.positional();
    EXPECT_EQ(registry.firstPositional(), 1U);
    declare(registry, "z").positional();
    EXPECT_EQ(registry.firstPositional(), 1U);
}

TEST(Registry, TagsActionsWithTheirNamesAndModifiersWithTheirActions) {
    RegisteredOptionStorage registry;
    registry.setSeparator(0);
    registry.action("alpha,a", "", vtNull, "");
    registry.modifier("m", "alpha,beta", "", vtString, "").tag(",x").tag(nullptr);

    EXPECT_THAT(registry.items()[0].tags, testing::ElementsAre("a", "alpha"));
    EXPECT_THAT(registry.items()[1].tags, testing::ElementsAre("", "alpha", "beta", "x"));
    EXPECT_EQ(registry.items()[1].tokenizer, '\0');
    EXPECT_TRUE(registry.hasActions());
}

// The lookups as they are meant, without an index.

bool hasName(const OptionDescription& item, const std::string& name) {
    return std::find(item.names.begin(), item.names.end(), name) != item.names.end();
}

std::size_t slowFind(const std::string& name, const OptionList& items) {
    const auto found = std::find_if(items.begin(), items.end(), [&](const OptionDescription& item) {
        const bool isNoForm = item.type == vtBool && name.substr(0, 3) == "no-";
        return hasName(item, name) || (isNoForm && hasName(item, name.substr(3)));
    });
    return static_cast<std::size_t>(found - items.begin());
}

Names slowCandidates(const std::string& text, const OptionList& items) {
    Names all;
    const auto add = [&](const std::string& name) {
        if (name.substr(0, text.size()) == text &&
            std::find(all.begin(), all.end(), name) == all.end()) {
            all.push_back(name);
        }
    };
    for (const OptionDescription& item : items) {
        for (const std::string& name : item.names) {
            add(name);
            if (item.type == vtBool) {
                add("no-" + name);
            }
        }
    }
    return all;
}

// Equal candidates count once wherever they are used.
Names withoutRepetition(const Names& names) {
    Names once;
    for (const std::string& name : names) {
        if (std::find(once.begin(), once.end(), name) == once.end()) {
            once.push_back(name);
        }
    }
    return once;
}

void expectSlowAnswers(const RegisteredOptionStorage& registry, const Names& texts) {
    const auto& items = registry.items();
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        std::size_t found = items.size();
        const result_t code = findOption(text, found, registry);
        EXPECT_EQ(code == resultSuccess, found != items.size());
        EXPECT_EQ(found, slowFind(text, items));

        Names candidates;
        makeOptionNamesList(registry, text, candidates);
        EXPECT_EQ(withoutRepetition(candidates), slowCandidates(text, items));

        for (const bool isAction : {false, true}) {
            EXPECT_EQ(registry.isDeclared(text, isAction, nullptr),
                      std::any_of(items.begin(), items.end(), [&](const OptionDescription& item) {
                          return (item.kind == kindAction) == isAction && hasName(item, text);
                      }));
        }
    }
}

TEST(Registry, FindsWhatALinearSearchFinds) {
    const Names pool{"",
                     "a",
                     "ab",
                     "abc",
                     "b",
                     "n",
                     "no",
                     "no-",
                     "no-a",
                     "no-b",
                     "nob",
                     "no-n",
                     "no-no-a",
                     "no-no-",
                     "no-ab",
                     "no-abc"};
    std::mt19937 dice(42);
    const auto drawn = [&] { return pool[dice() % pool.size()]; };
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE("vocabulary " + std::to_string(round));
        RegisteredOptionStorage registry;
        IOption* last = nullptr;
        for (int step = 0; step < 8 && !testing::Test::HasFailure(); ++step) {
            if (last != nullptr && dice() % 3 == 0) {
                last->synonym(drawn().c_str());
            } else {
                const std::string names = dice() % 2 == 0 ? drawn() : drawn() + "," + drawn();
                last = &registry.option(names.c_str(),
                                        nullptr,
                                        "",
                                        dice() % 3 == 0,
                                        dice() % 2 == 0 ? vtBool : vtString,
                                        "");
            }
            if (dice() % 4 != 0) {  // sometimes several are new at once
                expectSlowAnswers(registry, pool);
            }
        }
    }
}

}  // namespace
}  // namespace zarn_3_3
