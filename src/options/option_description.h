// One declared action, option or modifier.

#ifndef ZARN_OPTIONS_OPTION_DESCRIPTION_H
#define ZARN_OPTIONS_OPTION_DESCRIPTION_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "interface/shared_texts.h"
#include "options/name_list.h"
#include "text/status.h"
#include "text/text_locale.h"
#include "zarn/option.h"
#include "zarn/tooling.h"

namespace zarn_3_3 {

enum ItemKind : int {
    kindAction = 0,
    kindOption = 1,  // a modifier too: that is told by its tags
    kindSink = 2,
};

// The item behind an IOption, read directly by everything that works with the vocabulary.
class OptionDescription final : public IOption {
public:
    result_t result = resultSuccess;
    std::uint32_t section = 0;     // index of its pair in the registry's sections
    internal::NameList names;      // the primary name first; without dashes
    std::set<std::string> tags;    // what ties modifiers to actions
    std::string_view description;  // kept by the registry
    bool isPositional = false;
    bool hasDefault = false;
    bool isRequired = false;     // shown in usage lines; no parse looks at it
    bool takesOneValue = false;  // the same
    ItemKind kind = kindSink;
    char tokenizer = ',';          // 0: values are never cut
    bool isValueOptional = false;  // known to help and completion; no parse looks at it
    das_variant_type_t type = vtNull;
    variant_t defaultVal;
    std::vector<variant_t> allowedValues;
    std::map<variant_t, variant_t> deprecatedValues;  // to their replacements

    IOption& synonym(const char* name) override;
    IOption& allowValue(const variant_t& value) override;
    IOption& allowDeprecatedValue(const variant_t& deprecated,
                                  const variant_t& replacement) override;
    IOption& defaultValue(const variant_t& value) override;
    IOption& tokenize(char separator) override;
    IOption& positional() override;
    IOption& tag(const char* tagList) override;

    // A copy of what binding an occurrence takes: without tags, help and default.
    OptionDescription forBinding() const;

    // By primary name, byte-wise: the order of the help.
    bool operator<(const OptionDescription& other) const;

    // Whether it belongs to actions: any tag makes an option a modifier.
    bool isModifier() const { return kind != kindAction && !tags.empty(); }

    // The primary name; empty for an item without names.
    const std::string& primaryName() const { return names.empty() ? noName() : names.front(); }

    // Whether `text` is a value of the item: converts it into `converted`, which is vtNull, checks
    // it against the allowed values and completes an abbreviated one: `text` then points into
    // `converted`. noFailure; or what is wrong, with its text in `error`, and `text` is as it was.
    // Warns of a deprecated value on the error stream. Values that are texts are kept in `texts`.
    DiagnosticKind validate(std::string_view& text,
                            variant_t& converted,
                            std::string& error,
                            internal::TextLocale locale,
                            plinth2::SharedTexts& texts) const;

    // Sets `converted`, which is vtNull, to `text` as a value of the declared type, if it is one.
    void fromString(std::string_view text,
                    variant_t& converted,
                    internal::TextLocale locale,
                    plinth2::SharedTexts& texts) const;

    // The text of `value`, read as the declared type.
    std::string toString(const variant_t& value) const;

    std::string getTypeName() const;
    std::string getDefaultValueAsText() const;

private:
    static const std::string& noName();
};

}  // namespace zarn_3_3

#endif  // ZARN_OPTIONS_OPTION_DESCRIPTION_H
