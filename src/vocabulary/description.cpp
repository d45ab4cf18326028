#include "vocabulary/description.h"

#include <algorithm>
#include <vector>

#include "help/help_renderer.h"
#include "parser/ask_parser.h"
#include "parser/option_file_walk.h"
#include "text/split.h"
#include "vocabulary/json_writer.h"
#include "vocabulary/value_words.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// Readers skip keys that they do not know, so that this rises only when one changes its meaning.
constexpr int format = 1;

// Words of the format, as its keys are: readers compare them.
const char* wordOf(RefusalReason reason) {
    switch (reason) {
        case RefusalReason::nameTaken:
            return "nameTaken";
        case RefusalReason::tooManyNames:
            return "tooManyNames";
        case RefusalReason::longThirdName:
            return "longThirdName";
        default:
            return "noMemory";
    }
}

template <typename Texts>
void writeList(JsonWriter& json, const char* key, const Texts& texts) {
    json.open('[', key);
    for (const auto& text : texts) {
        json.element(text);
    }
    json.close();
}

const char* kindOf(const OptionDescription& item) {
    if (item.kind == kindAction) {
        return "action";
    }
    return item.isModifier() ? "modifier" : "option";
}

void writeValues(JsonWriter& json, const OptionDescription& item) {
    // What is empty or false leaves no key behind.
    json.text("default", item.hasDefault ? typedText(item.defaultVal) : "");
    json.open('[', "values");
    for (const variant_t& value : item.allowedValues) {
        json.element(typedText(value));
    }
    json.close();
    json.open('[', "deprecated");
    for (const auto& [value, replacement] : item.deprecatedValues) {
        json.open('{');
        json.text("value", typedText(value));
        json.text("replacement", typedText(replacement));
        json.close();
    }
    json.close();
    // A switch has a separator like every item, and no value to be cut.
    const bool isCut = item.type != vtNull && item.tokenizer != 0;
    json.text("separator", {&item.tokenizer, isCut ? 1U : 0U});
}

// Also an item of the tool's own with that name: it names the files then.
bool namesOptionFiles(const BasicParser& parser, const OptionDescription& item) {
    return parser.readsOptionFiles() &&
           std::find(item.names.begin(), item.names.end(), optionFileName) != item.names.end();
}

void writeItem(JsonWriter& json, const BasicParser& parser, std::size_t number) {
    const RegisteredOptionStorage& registry = parser.vocabulary();
    // Readers want to know what it takes, not that it takes the words for others.
    const OptionDescription& item = registry.asDeclared(number);
    const std::string& section = registry.sectionKey(item);
    json.open('{');
    writeList(json, "names", item.names);
    json.text("kind", kindOf(item));
    json.text("type", typeWord(item.type));
    json.text("help", item.description);
    json.text("section", section);
    json.flag("hidden", isSectionVisible(section, true));
    writeList(json, "tags", item.tags);
    writeValues(json, item);
    json.text("valueName", registry.valueName(number));
    json.flag("positional", item.isPositional);
    json.flag("optionFile", namesOptionFiles(parser, item));
    json.close();
}

void writeItems(JsonWriter& json, const BasicParser& parser) {
    json.open('[', "items");
    for (std::size_t i = 0; i < parser.vocabulary().items().size(); ++i) {
        writeItem(json, parser, i);
    }
    json.close();
}

void writeSections(JsonWriter& json, const SectionList& sections) {
    json.open('[', "sections");
    for (std::size_t i = 0; i < sections.size(); ++i) {
        json.open('{');
        json.text("key", sections[i].key);
        json.text("title", sections[i].title);
        json.close();
    }
    json.close();
}

void writeGroups(JsonWriter& json, const ActionGroups& groups) {
    json.open('[', "groups");
    for (const auto& group : groups.all()) {
        writeList(json, nullptr, group);
    }
    json.close();
}

void writeRefused(JsonWriter& json, const RegisteredOptionStorage& registry) {
    json.open('[', "refused");
    for (const Refusal& refusal : registry.refusals()) {
        // Cut as a declaration cuts them.
        std::vector<std::string> names;
        split(refusal.names, names);
        json.open('{');
        writeList(json, "names", names);
        json.text("reason", wordOf(refusal.reason));
        json.text("name", refusal.name);
        json.close();
    }
    json.close();
}

}  // namespace

std::string internal::descriptionOf(const BasicParser& parser, const ToolTexts& tool) {
    JsonWriter json;
    json.open('{');
    json.number("format", format);
    json.text("name", tool.name);
    json.text("version", tool.version);
    json.text("summary", tool.summary);
    json.number("flags", parser.creationFlags());
    writeSections(json, parser.vocabulary().sectionList());
    writeGroups(json, parser.actionGroups());
    writeRefused(json, parser.vocabulary());
    writeItems(json, parser);
    json.close();
    return json.take();
}

int describeVocabulary(IParser* parser, const ToolInfo* tool, const char** json) {
    // Refused as a null parser is.
    if (tool == nullptr) {
        parser = nullptr;
    }
    return askParser(parser, json, [&](BasicParser& asked) -> int {
        *json = asked.keep(descriptionOf(asked, ToolTexts(*tool)));
        return toolingDone;
    });
}

}  // namespace zarn_3_3
