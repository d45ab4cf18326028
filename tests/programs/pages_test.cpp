// Pages about tools: what they hold, and that the languages they are written in take no text for
// their own.

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <regex>
#include <string_view>

#include "document.h"
#include "markdown_writer.h"
#include "mdoc_writer.h"
#include "nasty_descriptions.h"
#include "page_text.h"
#include "support/scratch_folder.h"

namespace vocabulary {
namespace {

using testing::HasSubstr;

std::string outputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> buffer{};
    while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) {
        output.append(buffer.data(), size);
    }
    return output;
}

// Reads pages with a program of others. Where that is missing the test is skipped, but not in CI.
class PagesReadBy : public testing::Test {
protected:
    void require(const char* program) {
        if (!outputOf(std::string("command -v ") + program).empty()) {
            return;
        }
        const char* const ci = std::getenv("CI");
        ASSERT_FALSE(ci != nullptr && std::string_view(ci) == "true") << program << " is missing";
        GTEST_SKIP() << program << " is missing";
    }

    // With a slash, by which programs tell it from the name of a page.
    static std::string file(const std::string& name) { return "./" + name; }

    static void write(const std::string& name, const std::string& page) {
        std::ofstream(file(name)) << page;
    }

private:
    zarn_3_3::testing_support::ScratchFolder folder_;
};

// Without what programs add to fit a text into lines.
std::string squeezed(const std::string& text) {
    std::string left;
    for (const char32_t character : decoded(text)) {
        const bool isAdded = character == U' ' || character == U'\n' || character == 0x2010;
        if (!isAdded) {
            appendEncoded(left, character);
        }
    }
    return left;
}

std::string shown(const std::string& text) {
    std::string encoded;
    for (const std::u32string& word : wordsOf(text)) {
        for (const char32_t character : word) {
            appendEncoded(encoded, character);
        }
    }
    return encoded;
}

std::string shownAsTyped(const std::string& text) {
    std::string encoded;
    for (const char32_t character : visible(text)) {
        appendEncoded(encoded, character);
    }
    return squeezed(encoded);
}

// HTML without its tags.
std::string textOfHtml(const std::string& html) {
    constexpr std::pair<const char*, const char*> entities[] = {
        {"&lt;",   "<" },
        {"&gt;",   ">" },
        {"&quot;", "\""},
        {"&amp;",  "&" }
    };
    std::string text = std::regex_replace(html, std::regex("<[^>]*>"), "");
    for (const auto& [entity, character] : entities) {
        text = std::regex_replace(text, std::regex(entity), character);
    }
    return text;
}

// Every text of the document that comes from a description, as it is to be seen.
std::vector<std::string> textsOf(const Document& document) {
    std::string summary = shown(document.summary);
    summary.resize(summary.find_last_not_of('.') + 1);
    std::vector<std::string> texts{shownAsTyped(document.name), summary};
    for (const Chapter& chapter : document.chapters) {
        texts.push_back(shown(chapter.title));
        for (const Entry& entry : chapter.entries) {
            texts.push_back(shown(entry.help));
            std::transform(
                entry.names.begin(), entry.names.end(), std::back_inserter(texts), shownAsTyped);
            for (const Fact& fact : entry.facts) {
                for (const Span& span : fact.text) {
                    texts.push_back(shownAsTyped(span.text));
                }
            }
        }
    }
    return texts;
}

void expectTexts(const std::string& read, const Document& document) {
    const std::string page = squeezed(read);
    for (const std::string& text : textsOf(document)) {
        EXPECT_THAT(page, HasSubstr(text));
    }
}

TEST_F(PagesReadBy, MandocHaveNoFault) {
    require("mandoc");
    NastyDescriptions descriptions(1);
    for (int i = 0; i < 300; ++i) {
        write(std::to_string(i) + ".1",
              asManualPage(documentOf(descriptions.next()), "January 31, 2026"));
    }
    EXPECT_EQ(outputOf("mandoc -Tlint -W style " + file("*.1") + " 2>&1"), "");
}

TEST_F(PagesReadBy, ManShowEveryText) {
    require("man");
    NastyDescriptions descriptions(2);
    for (int i = 0; i < 10; ++i) {
        Document document = documentOf(descriptions.next());
        if (i == 0) {
            document.name.assign(300, 'x');  // longer than a line
        }
        const std::string page = asManualPage(document, "January 31, 2026");
        SCOPED_TRACE(page);
        write("page.1", page);
        const std::string warnings = file("warnings");
        const std::string read = outputOf("LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings=w -l " +
                                          file("page.1") + " 2>" + warnings);
        EXPECT_EQ(outputOf("cat " + warnings), "");
        expectTexts(read, document);
    }
}

TEST_F(PagesReadBy, MarkdownShowEveryText) {
    require("cmark-gfm");
    NastyDescriptions descriptions(3);
    for (int i = 0; i < 100; ++i) {
        const Document document = documentOf(descriptions.next());
        const std::string page = asMarkdown(document);
        SCOPED_TRACE(page);
        write("page.md", page);
        const std::string html = outputOf("cmark-gfm --unsafe -e table " + file("page.md"));
        expectTexts(textOfHtml(html), document);
    }
}

}  // namespace
}  // namespace vocabulary
