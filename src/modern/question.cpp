#include "modern/question.h"

#include <new>

#include "zarn/tooling.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {

std::optional<Answer> answerToQuestion(Vocabulary& vocabulary,
                                       const std::string& tool,
                                       CommandLine line) {
    // A parse lives with a null argv, and so does this.
    const int argc = line.argv == nullptr ? 0 : line.argc;
    const Tool& given = vocabulary.tool();
    const ToolInfo info{sizeof info, tool.c_str(), given.version, given.summary};
    const char* answer = nullptr;
    const int code = answerQuestion(&vocabulary.plain(), &info, argc, line.argv, &answer);
    if (code == toolingFailed) {
        throw std::bad_alloc();
    }
    if (code == ordinaryLine) {
        return std::nullopt;
    }
    // Behind the answer, which needs no settling: an ordinary line is settled by its parse.
    vocabulary.settle();
    return Answer{answer, "", exitAnswered};
}

}  // namespace zarn_3_3::internal
