#include "vocabulary.h"

#include <sstream>

namespace fuzzing {
namespace {

using namespace zarn_3_3;

const char* const nameLists[] = {"verbose,v",
                                 "version",
                                 "level,l,lv",
                                 "color,c",
                                 "no-color",
                                 "file",
                                 "list,l",
                                 "count,n",
                                 "a",
                                 "ab,x",
                                 "abc,y,zz",
                                 "alpha,a",
                                 "beta,b",
                                 "",
                                 ",odd"};

const das_variant_type_t types[] = {
    vtBool, vtS32, vtU32, vtS64, vtU64, vtDouble, vtString, vtString, vtString, vtNull, vtBlob};

const char* const texts[] = {"one", "other", "o", "", "1", "7", "0x1f", "-1"};

const char* const sections[] = {"main:Title", "", "zarn_hidden", "more:What else there is", ":"};

const char* const tagLists[] = {"", "", "", "alpha", "beta", "alpha,beta", "a"};

const char* const descriptions[] = {
    "", "What it does", "A text that takes more than one line of the column that it stands in"};

const char* const beginnings[] = {"--", "-", "", "--no-", "\u2014", "---"};

const char* const stems[] = {"",
                             "v",
                             "ver",
                             "verbose",
                             "version",
                             "l",
                             "level",
                             "c",
                             "color",
                             "file",
                             "count",
                             "a",
                             "ab",
                             "alpha",
                             "beta",
                             "x",
                             "option-file",
                             "zarnoption=zarnlogenable=1"};

const char* const endings[] = {
    "", "=", "=1", "=one,other", "=o", " 7", "=-1", "=f0", "=f1,./f0", "=dir"};

// Where the last of the choices is drawn, the bytes themselves say what it is.
template <std::size_t count>
std::string pickOrMake(Bytes& bytes, const char* const (&choices)[count]) {
    const unsigned choice = bytes.below(count + 1);
    return choice == count ? bytes.text() : choices[choice];
}

void makeSetting(Bytes& bytes,
                 IOption& item,
                 das_variant_type_t type,
                 std::vector<std::string>& names) {
    switch (bytes.below(7)) {
        case 0:
            item.defaultValue(valueFrom(bytes, type));
            break;
        case 1:
            item.allowValue(valueFrom(bytes, type));
            break;
        case 2: {
            const variant_t deprecated = valueFrom(bytes, type);
            item.allowDeprecatedValue(deprecated, valueFrom(bytes, type));
            break;
        }
        case 3:
            item.positional();
            break;
        case 4:
            names.push_back(pickOrMake(bytes, stems));
            item.synonym(names.back().c_str());
            break;
        case 5:
            item.tokenize(static_cast<char>(bytes.below(256)));
            break;
        default:
            item.tag(tagsFrom(bytes).c_str());
            break;
    }
}

}  // namespace

std::string nameListFrom(Bytes& bytes) { return pickOrMake(bytes, nameLists); }

das_variant_type_t typeFrom(Bytes& bytes) { return bytes.pick(types); }

variant_t valueFrom(Bytes& bytes, das_variant_type_t type) {
    const bool isNumber = type <= vtDouble;
    switch (bytes.below(isNumber ? 6 : 9)) {
        case 0:
            return bytes.flag();
        case 1:
            return bytes.number<int>();
        case 2:
            return bytes.number<unsigned>();
        case 3:
            return bytes.number<long long>();
        case 4:
            return bytes.number<unsigned long long>();
        case 5:
            return bytes.number<double>();
        case 6:
            return variant_t(bytes.pick(texts), true);
        case 7:
            return variant_t::wideText(L"wide");
        default:
            return pickOrMake(bytes, texts);
    }
}

std::string sectionFrom(Bytes& bytes) { return pickOrMake(bytes, sections); }

std::string tagsFrom(Bytes& bytes) { return pickOrMake(bytes, tagLists); }

std::string descriptionFrom(Bytes& bytes) { return pickOrMake(bytes, descriptions); }

void makeSettings(Bytes& bytes,
                  IOption& item,
                  das_variant_type_t type,
                  std::vector<std::string>& names) {
    for (unsigned left = bytes.below(6); left > 0; --left) {
        makeSetting(bytes, item, type, names);
    }
}

std::vector<std::string> argumentsFrom(Bytes& bytes) {
    std::vector<std::string> arguments;
    for (unsigned left = bytes.below(16); left > 0; --left) {
        std::string argument = bytes.pick(beginnings);
        argument += bytes.pick(stems);
        argument += pickOrMake(bytes, endings);
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

void appendNames(const std::string& nameList, std::vector<std::string>& names) {
    if (nameList.empty()) {
        names.emplace_back();
    }
    std::istringstream stream(nameList);
    for (std::string name; std::getline(stream, name, ',');) {
        names.push_back(name);
    }
}

}  // namespace fuzzing
