#include "tool.h"

#include "arguments.h"
#include "vocabulary.h"

namespace fuzzing {

std::vector<std::string> declareTool(Bytes& bytes, zarn_3_3::IParser& parser) {
    std::vector<std::string> names = declareVocabulary(bytes, parser);
    if (bytes.flag()) {
        parser.addOptionFileOption("Arguments from a file", "main");
        names.emplace_back("option-file");
    }
    for (unsigned left = bytes.below(3); left > 0; --left) {
        std::vector<std::string> group;
        appendNames(tagsFrom(bytes), group);
        parser.allowSimultaneousActions({group.begin(), group.end()});
    }
    return names;
}

std::vector<std::string> filesFrom(Bytes& bytes) {
    std::vector<std::string> contents;
    for (unsigned left = bytes.below(4); left > 0; --left) {
        contents.push_back(linesOf(argumentsFrom(bytes)));
        contents.back() += bytes.text();
    }
    return contents;
}

}  // namespace fuzzing
