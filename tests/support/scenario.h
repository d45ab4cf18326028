// Scenarios: what a client does with the library, and what it sees.
//
// A file is read line by line; each step is one line of words between blanks. Behind it stand the
// answers that it gets, each in a line of its own behind "> ". Lines that are empty or begin with
// '#' are for people.
//
//     # Levels are numbers.
//     vocabulary levels
//     option level,l s32 help="How hard." default=3
//
//     scenario A handler refuses a value
//     parser strict like=levels
//     add 1
//     on 1 value level=9 : refuse
//     args --lev=1 -l 9
//     > 1 option level; 1 value level=1@4; 1 option level; 1 value level=9@6
//     > 1 Value '9' is not valid for option 'level' in argument '-l'
//     show
//     > level,l@3=1@4
//
// "scenario TITLE" begins a world of its own, "vocabulary NAME" the declarations that like=NAME
// repeats behind the step "parser" that has it. Inside "..." blanks belong to the word, and \n \r
// \t \\ \" \xHH stand for one byte anywhere. The word null is the null pointer. Words marked [ ]
// may be left out, ... may be repeated. LINEs are joined by line feeds.
//
// Parsers and results have names. A step is about those that were made or used last; what is used
// inside an event is used until its end.
//     parser [FLAG]... [name=N]     makes a parser (strict, behind, noDash, rest, whole, or a
//                                   number) and a result of the same name, "main" if none is given
//     result NAME                   made by the parser in use. Named null, neither has a place
//     use [parser=N] [result=N]     result=null and result=foreign are none of the library's
//     destroy [parser=N] [result=N]
//
// Declarations. SETTINGs are taken in the order in which they stand: synonym=NAME allow=VALUE
// deprecated=VALUE->VALUE default=VALUE tokenize=[C] positional tag=TAGS. A VALUE is of the type of
// its item, or KIND:TEXT. Types and kinds: bool s32 u32 s64 u64 double string wide ref wideref blob
// switch, where the last is the empty value, and ref and wideref are borrowed texts.
//     option NAMES TYPE [help=TEXT] [section=KEY:TITLE] [SETTING]...
//     action NAMES TYPE ...
//     modifier NAMES TYPE [of=ACTIONS] ...
//     set SETTING...                for the item that was declared last
//     optionfile [help=TEXT] [section=KEY:TITLE]
//     group [ACTION]...             that may be used together
//     declared NAME [action] [section=KEY]
//
// Handlers have numbers from 0 to 9, in the order of their addresses.
//     add N, remove N               also of null, and of parsers: "add parser", "add parser=NAME"
//     on N [nth=M] EVENT : STEP     what handler N does when it hears EVENT, each time or the M-th.
//                                   A '*' at the end stands for anything. Not while STEP is done.
//                                   What is written to the console are events too, which need no
//                                   handler: "log LINE" and "warning LINE"
//     refuse                        inside an event: the answer is false
//     throw KIND [TEXT]             inside an event: standard, memory, silent (its text is null),
//                                   foreign
//
// Parsing. All texts are scribbled over and freed when the first event of their parse is heard, or
// its first line stands in the log.
//     args [WORD]...                as main would have them
//     argv COUNT [WORD]...          from argv[0] on; without words argv is null
//     text [LINE]...                or "text null"
//     vector [WORD]...              a parse of what remains of a command line; tells what is left
//     phaseOne MARK [WORD]...       its options, up to MARK
//     phaseTwo MARK [WORD]...       the rules on actions
//     error                         the text of the last failure
//
// Files exist in memory only. Of a growing one the size is told too small, of a huge one too large
// to be read; a changing one is another kind of file as soon as it is open.
//     file NAME [LINE]..., pipe, growing, directory, device, unreadable, huge, changing
//     link NAME TARGET              another name, or spelling, of a file
//
// Reading. Numbers count from the first that the scenario draws, "end" is the greatest of all.
//     present NAME [FROM [TO]]      and get, last, walk: all values of a walk
//     next [NAME]
//     nextPosition
//     argument first|next [null]    behind the terminator
//     show [NAME]...                all that is stored: NAMES@occurrences=value@number,...
//     help [hidden]
//     topic NAME [hidden], modifiers ACTION [hidden], globals [hidden]
//     wrap HEAD TEXT INDENT WIDTH
//
// The world.
//     locale grouping|classic       the first also takes the texts back when it reads a number
//     signs                         from now on streams write them before all numbers
//     left COUNT                    numbers before the end of the sequence
//     lack N                        of memory: the N-th allocation from now on fails. 0: none

#ifndef ZARN_TESTS_SUPPORT_SCENARIO_H
#define ZARN_TESTS_SUPPORT_SCENARIO_H

#include <initializer_list>
#include <string>
#include <vector>

#include "support/observer.h"

namespace zarn_3_3::testing_support {

using Words = std::vector<std::string>;

// The text behind KEY= among the words, `otherwise` when there is none.
std::string settingOf(const Words& words, const std::string& key, const std::string& otherwise);

struct Step {
    int line;  // in its file; a repeated declaration has the line of its parser
    std::string verb;
    Words words;
};

// Whether it is a step that parses.
bool isParse(const Step& step);

bool isHelp(const std::string& verb);

// Whether nothing keeps back what the library throws.
bool mayThrow(const std::string& verb);

bool startsWith(const std::string& text, const std::string& start);
bool isAmong(const std::string& word, std::initializer_list<const char*> words);

struct Scenario {
    std::string title;
    int line;
    std::vector<Step> steps;
    Answers expected;
};

bool hasStep(const Scenario& scenario, std::initializer_list<const char*> verbs);

// The scenarios of a text in this language. Throws std::invalid_argument, which names the line.
std::vector<Scenario> readScenarios(const std::string& text);

// The step that a line is. `line` is kept in it and named when the text is none.
Step readStep(const std::string& text, int line);

// The same text with these answers in the place of its own.
std::string withAnswers(const std::string& text, const Answers& answers);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_SCENARIO_H
