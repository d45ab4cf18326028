#include "nasty_descriptions.h"

#include <iterator>
#include <string_view>
#include <vector>

namespace vocabulary {
namespace {

// Between the marks stands what the languages of pages could take for their own.
constexpr std::string_view nastyTexts =
    R"(.¦'¦\¦\&¦\fB¦"¦-¦--¦`¦```¦^¦~¦Nm¦Ar¦Fl¦El¦Pp¦Xo¦%A¦.Sh¦'br¦Os¦No¦in¦ ¦  ¦. ¦! ¦? ¦e.g.¦.) ¦...)"
    R"(¦|¦*¦_¦<b>¦&amp;¦[¦](¦#¦1.¦2)¦+¦=¦:¦,¦;¦(¦)¦foo()¦f() ¦$x$¦https:¦@x¦{¦}¦!¦a¦word¦Two words)"
    "¦OpenBSD ¦NetBSD ¦DragonFly ¦\t¦\n¦\n\n¦\r\n¦\x01¦\x1b[1m¦\x7f¦\xc2\x85¦\xff¦\xc3¦é¦中文¦😀¦—"
    "¦\xc2\xa0¦¦";

std::vector<std::string> splitNastyTexts() {
    constexpr std::string_view mark = "¦";
    std::vector<std::string> pieces{std::string(150, 'x') + "-" + std::string(150, '.')};
    for (std::string_view rest = nastyTexts; !rest.empty();) {
        const std::size_t end = rest.find(mark);
        pieces.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end + mark.size());
    }
    return pieces;
}

const std::vector<std::string> nastyPieces = splitNastyTexts();

}  // namespace

std::string NastyDescriptions::text(std::size_t mostPieces) {
    std::string text;
    for (std::size_t left = upTo(mostPieces); left != 0; --left) {
        text.append(oneOf(nastyPieces)).append(upTo(2) == 0 ? " " : "");
    }
    return text;
}

Item NastyDescriptions::item() {
    constexpr Kind kinds[] = {Kind::action, Kind::modifier, Kind::option};
    constexpr Type types[] = {Type::toggle, Type::boolean, Type::int32, Type::real, Type::text};
    const std::string tags[] = {"one", "two", "three"};
    Item item;
    for (std::size_t left = 1 + upTo(2); left != 0; --left) {
        item.names.push_back(text(3));
    }
    item.kind = oneOf(kinds);
    item.type = oneOf(types);
    item.help = text(20);
    item.section = upTo(1) == 0 ? "" : oneOf(tags);
    item.isHidden = upTo(5) == 0;
    item.tags = {oneOf(tags)};
    item.defaultValue = item.type == Type::boolean ? "1" : text(3);
    for (std::size_t left = upTo(3); left != 0; --left) {
        item.values.push_back(text(3));
        item.deprecated.push_back({text(3), text(3)});
    }
    item.separator = upTo(1) == 0 ? "" : oneOf(nastyPieces).substr(0, 1);
    item.valueName = text(2);
    item.isPositional = item.kind != Kind::action && upTo(4) == 0;
    item.isOptionFile = upTo(4) == 0;
    return item;
}

Description NastyDescriptions::next() {
    Description description;
    description.name = "x" + text(2);
    description.version = text(2);
    description.summary = text(8);
    description.flags = static_cast<int>(upTo(63));
    description.sections = {
        {"one", text(4)},
        {"two", text(4)},
        {"",    text(1)},
    };
    for (std::size_t left = upTo(8); left != 0; --left) {
        description.items.push_back(item());
    }
    return description;
}

}  // namespace vocabulary
