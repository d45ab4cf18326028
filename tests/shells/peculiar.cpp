// A tool of the plain interface with values that a shell reads in its own way.

#include <cstdio>

#include "zarn/tooling.h"
#include "zarn/zarn.h"

int main(int argc, char** argv) {
    zarn::IParser* parser = nullptr;
    if (zarn::createParser(&parser, zarn::flagPositionalBehindTerminator) != zarn::resultOk) {
        return 3;
    }
    parser->option("say", "What is said.", plinth2::vtString, "")
        .allowValue("two words")
        .allowValue("$(touch hit)")
        .allowValue("don't")
        .allowValue(
            "\xC3\xBC"
            "ber");
    parser->option("at", "Where.", plinth2::vtString, "")
        .allowValue("host:80")
        .allowValue("host:443");
    parser->option("mail", "To whom.", plinth2::vtString, "")
        .allowValue("me@home")
        .allowValue("me@work");
    parser->option("parts", "What is taken.", plinth2::vtString, "")
        .tokenize(',')
        .allowValue("head")
        .allowValue("body")
        .allowValue("foot");
    parser->option("sure", "Do not ask.", plinth2::vtBool, "").defaultValue(true);
    const zarn::ToolInfo tool{sizeof tool, "peculiar", "1.0", "Is asked."};
    const char* answer = "";
    const int code = zarn::answerQuestion(parser, &tool, argc, argv, &answer);
    std::fputs(answer, stdout);
    parser->destroy();
    return code == zarn::questionAnswered ? 0 : 1;
}
