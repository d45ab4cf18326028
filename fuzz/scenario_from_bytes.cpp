#include "scenario_from_bytes.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <sstream>
#include <vector>

#include "support/observer.h"

namespace fuzzing {
namespace {

using Texts = std::vector<std::string>;

// Each line begins with a symbol; it stands for one of the texts between the signs '|', with
// <symbols> in them and '~' for the end of a line. Lines of the same symbol add up. The first text
// of a symbol leads to an end, since it is taken when no bytes are left.
const char* const grammar = R"(
scenario scenario Made up of bytes~parser <flags>~<declare><declare><declarations><optionfile><rest>
rest <files><handlers><step><step><steps>show~help~destroy parser=main~show~
flags |strict|strict|noDash strict|behind|rest|whole|noDash behind|rest strict whole
optionfile optionfile section=main~|optionfile <help>~|
declarations |<declare><declarations>|<declare><declarations>|<declare><declarations>
declare <item> <numeric> <about><numbers>~|<item> <numeric> <about><numbers>~
declare <item> <textual> <about><texts>~|<item> <textual> <about><texts>~|group <group>~
item option "<names>"|option "<names>"|option "<names>"|action "<names>"|modifier "<names>"
names level,l,lv|verbose,v|version|color,c|no-color|file|list,l|count,n|a|ab,x|abc,y,zz|alpha,al
names beta,b||-odd|,empty|null|a-name-that-takes-a-block-of-its-own|<bytes>
numeric s32|bool|switch|u64|double|u32|s64
textual string|string|string|ref|wide|wideref|blob
about |section=main:Title|section=zarn_hidden|section=more: of=alpha|of=<actions>|<help>
help help="<text>"|help="A text that takes more than one line of its column, by far"
actions alpha|alpha,beta|beta|al||a,b,ab|null
group alpha beta|beta|alpha al|a b ab|
numbers | "<numberset>"<numbers>| "<numberset>"<numbers>
numberset default=<number>|allow=<number>|allow=<number>|<set>|deprecated=<number>-><number>
numberset default=<kind>:<number>|allow=<kind>:<number>
kind bool|s32|u32|s64|u64|double
texts | "<textset>"<texts>| "<textset>"<texts>
textset default=string:<text>|allow=string:<text>|allow=string:<text>|<set>|allow=<textual>:<text>
textset deprecated=string:<text>->string:<text>|deprecated=<kind>:<number>->string:<text>
set positional|synonym=<name>|synonym=<names>|tokenize=<separator>|tag=<actions>
number 1|7|12|0|-1|0x1F|2147483647|4294967296|<digits>
text one|other|o|on e||a text longer than a short string|<bytes>
separator ,|:||;|\x20
files |<file> f0<arguments>~<files>|<file> f1<arguments>~link ./f0 f1~<files>
file file|file|file|file|pipe|growing|directory|device|unreadable
handlers |||add <handler>~<handlers>|add <handler>~on <handler><event> : <deed>~<handlers>
handlers add <handler>~on <handler> nth=<count> * : args<arguments>~
handler 0|1|2
count 1|2|3
event  *| option *| value *| unknown *| value level=*| nth=<count> *| nth=<count> value *
deed refuse|throw <thrown>|<query>|set "<numberset>"|option "<names>" bool|add 0|remove 1
thrown standard why|memory|silent|foreign
steps |<step><steps>|<step><steps>|<step><steps>
step args<arguments>~|args<arguments>~show~|args<arguments>~<query>~<query>~|text<arguments>~
step args<arguments>~|<query>~|<declare>|<world>~
world result other|use result=main|parser <flags> name=other~<declare>|use parser=main|error
world locale grouping|locale classic|left 3|left 20|argv 0|remove 0|add parser|use result=null
query walk<range>|get<range>|last<range>|present<range>|next|nextPosition|argument first|show
query argument next|declared "<name>"|topic "<name>"|modifiers "<name>" hidden|globals
query help hidden|wrap "<text>" "<bytes>" <measures>
measures 20 60|0 2|3 10|30 31|7 4|0 0
range  "<name>"| "<name>" 1| "<name>" <count> 7| "<name>" 5 end
arguments | "<argument>"<arguments>| "<argument>"<arguments>| "<argument>"<arguments>
argument <option>|<option>=<given>|<option>=<given>|<option> <given>|<given>|<special>|<bytes>
option <dash><name>
dash --|--|-|--no-|—|—-|---|
special --|--option-file=f0|-|—|zarnoption=zarnlogenable=1|null|--option-file=f1,./f0|=|--=1
given <value>|<value>|<value>,<value>|<value>:<value>|f0|./f0,f1|
)";

Texts cut(const std::string& text, char separator) {
    Texts pieces;
    std::istringstream stream(text + separator);
    for (std::string piece; std::getline(stream, piece, separator);) {
        pieces.push_back(piece);
    }
    return pieces;
}

std::map<std::string, Texts> readGrammar() {
    std::map<std::string, Texts> rules;
    for (const std::string& line : cut(grammar, '\n')) {
        const std::size_t end = line.find(' ');
        for (std::string& choice : cut(line.substr(std::min(end + 1, line.size())), '|')) {
            std::replace(choice.begin(), choice.end(), '~', '\n');
            rules[line.substr(0, end)].push_back(choice);
        }
    }
    return rules;
}

// What separates the parts of steps and of answers stands in no text.
std::string asWord(const std::string& text) {
    std::string word = text;
    std::replace_if(
        word.begin(), word.end(), [](char c) { return std::strchr("\"@>\\", c) != nullptr; }, '_');
    return zarn_3_3::testing_support::escaped(word);
}

// Up to `size`, and not into an escape.
std::string beginningOf(const std::string& word, std::size_t size) {
    const std::string beginning = word.substr(0, size);
    const std::size_t escape = beginning.rfind('\\');
    return beginning.substr(0, escape + 3 >= size ? escape : size);
}

class Author {
public:
    explicit Author(Bytes bytes) : bytes_(bytes) {}

    std::string write(const std::string& symbol) {
        if (symbol == "bytes") {
            return asWord(bytes_.text(20));
        }
        if (symbol == "digits") {
            return std::to_string(bytes_.number<int>());
        }
        if (symbol == "name" || symbol == "value") {
            return remembered(symbol == "name" ? names_ : values_);
        }
        static const std::map<std::string, Texts> rules = readGrammar();
        const Texts& choices = rules.at(symbol);
        std::string text = expanded(choices[bytes_.below(choices.size())]);
        remember(symbol, text);
        return text;
    }

private:
    std::string expanded(const std::string& text) {
        const Texts pieces = cut(text, '<');
        std::string made = pieces[0];
        for (std::size_t i = 1; i < pieces.size(); ++i) {
            const std::size_t end = pieces[i].find('>');
            made += write(pieces[i].substr(0, end));
            made += pieces[i].substr(end + 1);
        }
        return made;
    }

    void remember(const std::string& symbol, const std::string& text) {
        if (symbol == "names") {
            const Texts names = cut(text, ',');
            names_.insert(names_.end(), names.begin(), names.end());
        } else if (symbol == "number" || symbol == "text") {
            values_.push_back(text);
        }
    }

    // One in three is only the beginning of what was declared.
    std::string remembered(const Texts& texts) {
        const std::string& text = texts[bytes_.below(std::min<std::size_t>(texts.size(), 256))];
        return bytes_.below(3) != 2
                   ? text
                   : beginningOf(text, bytes_.below(std::min<std::size_t>(text.size() + 1, 256)));
    }

    Bytes bytes_;
    Texts names_{"option-file", "level"};
    Texts values_{"1", "one", "f0", "0x1F", "-1", "x"};
};

}  // namespace

std::string scenarioFrom(Bytes bytes) { return Author(bytes).write("scenario"); }

Outage outageFrom(Bytes& bytes) {
    using zarn_3_3::testing_support::Lasts;
    const Lasts all[] = {Lasts::once, Lasts::untilEndOfStep, Lasts::untilEndOfScenario};
    const long nth = 1 + bytes.number<std::uint16_t>() % 4096;
    return {nth, all[bytes.number<std::uint16_t>() % std::size(all)]};
}

}  // namespace fuzzing
