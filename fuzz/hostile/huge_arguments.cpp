// Single arguments of 1 MiB and 64 MiB: they are dealt with as any other, in memory that stays in
// proportion to them.

#include "hostile.h"
#include "support/expectation.h"
#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;
using testing_support::Tool;

enum class Filling { oneText, separators, pieces };

struct Shape {
    const char* name;
    const char* front;
    Filling filling;
    int code;
    const char* storedUnder;  // the option that has the whole filling as its value
};

const Shape shapes[] = {
    {"value",            "--path=",  Filling::oneText,    resultOk,         "path"},
    {"positional",       "",         Filling::oneText,    resultOk,         "file"},
    {"name",             "--",       Filling::oneText,    resultRuleBroken, ""    },
    {"switch's value",   "--dry=",   Filling::oneText,    resultRuleBroken, ""    },
    {"wrong number",     "--level=", Filling::oneText,    resultRuleBroken, ""    },
    {"separators alone", "--many=",  Filling::separators, resultRuleBroken, ""    },
    {"pieces",           "--many=",  Filling::pieces,     resultOk,         ""    },
    {"wrong pieces",     "--level=", Filling::pieces,     resultRuleBroken, ""    },
    {"dashes",           "-----",    Filling::oneText,    resultRuleBroken, ""    },
};

std::string filled(Filling filling, std::size_t size) {
    if (filling != Filling::pieces) {
        return std::string(size, filling == Filling::oneText ? 'x' : ',');
    }
    std::string text(size, 'x');
    for (std::size_t i = 1; i < size; i += 2) {
        text[i] = ',';
    }
    return text;
}

void pass(const Shape& shape, std::size_t size) {
    Tool tool(flagUnknownIsError | flagPositionalWithoutDash);
    tool.option("path").tokenize(0);
    tool.option("level", vtS32);
    tool.option("dry", vtNull);
    tool.option("many");
    tool.option("file").tokenize(0).positional();
    const std::string filling = filled(shape.filling, size);
    const std::string argument = shape.front + filling;
    const char* const line[] = {"tool", argument.c_str()};

    const std::size_t before = memory.bytes;
    expectEqual(tool->parseArgsVector(2, line, tool.result), shape.code, "code");
    const std::string error = tool->getErrorDesc();
    const std::size_t taken = memory.bytes - before;

    const std::size_t pieces = shape.filling == Filling::pieces ? size / 2 : 0;
    expect(taken <= 20 * size + 400 * pieces, std::to_string(taken) + " bytes were taken");
    expect((shape.code == resultOk) == error.empty(), "error text");
    if (*shape.storedUnder != '\0') {
        expectEqual(tool.values(shape.storedUnder), filling, "value");
    }
}

}  // namespace

long passHugeArguments() {
    constexpr std::size_t mebibyte = std::size_t{1} << 20;
    long passed = 0;
    for (const Shape& shape : shapes) {
        for (const std::size_t size : {mebibyte, 64 * mebibyte}) {
            // As many values as this are another matter: every one has its number.
            if (shape.filling == Filling::pieces && size > mebibyte) {
                continue;
            }
            const checking::Place place(std::string("huge ") + shape.name + " of " +
                                        std::to_string(size));
            pass(shape, size);
            ++passed;
        }
    }
    return passed;
}

}  // namespace zarn_3_3::hostile
