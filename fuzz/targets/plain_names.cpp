#include "plain_names.h"

#include <algorithm>
#include <cctype>

namespace fuzzing {

std::vector<Form> formsOf(const std::vector<PlainItem>& items) {
    std::vector<Form> forms;
    for (const PlainItem& item : items) {
        for (const std::string& name : item.names) {
            forms.push_back({name, &item});
            if (item.isBoolean) {
                forms.push_back({"no-" + name, &item});
            }
        }
    }
    return forms;
}

std::vector<Form> meantBy(const std::vector<Form>& forms, const std::string& text) {
    std::vector<Form> meant;
    for (const Form& form : forms) {
        const auto isSame = [&](const Form& other) { return other.text == form.text; };
        if (form.text == text) {
            return {form};
        }
        if (form.text.compare(0, text.size(), text) == 0 &&
            std::none_of(meant.begin(), meant.end(), isSame)) {
            meant.push_back(form);
        }
    }
    return meant;
}

std::string takenFor(const Form& form) {
    const std::string value = form.text.compare(0, 3, "no-") == 0 ? "0" : "1";
    return "<" + form.item->names.front() + ">" + (form.item->isBoolean ? value : "");
}

std::string refusal(const std::vector<Form>& meant, const std::string& text) {
    if (meant.empty()) {
        return "Unknown option: --" + text;
    }
    std::string error = "Ambiguous option '" + text + "' in argument: '--" + text + "', could be: ";
    for (const Form& form : meant) {
        error += (&form == &meant.front() ? "'" : ", '") + form.text + "'";
    }
    return error;
}

bool canBeName(const std::string& text) {
    const auto endsName = [](char c) {
        return c == '=' || std::isspace(static_cast<unsigned char>(c)) != 0;
    };
    return !text.empty() && text.front() != '-' && std::none_of(text.begin(), text.end(), endsName);
}

}  // namespace fuzzing
