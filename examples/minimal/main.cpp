// minimal: prints the first lines of files. All that a tool needs of the plain interface.

#include <zarn/zarn.h>

#include <fstream>
#include <iostream>
#include <string>

namespace {

enum ExitCode : int { exitOk = 0, exitFile = 1, exitUsage = 2, exitInternal = 3 };

// Queries that ask for numbers from 0 to this one read the whole command line.
using zarn::lineEnd;

void declareVocabulary(zarn::IParser& parser) {
    parser.option("help,h", "Show this help.", zarn::vtNull, "");
    parser.option("lines,n", "How many lines of each file.", zarn::vtU32, "").defaultValue(10u);
    parser.option("number", "Put its number before each line.", zarn::vtNull, "");
    parser.option("file", "What is read.", zarn::vtString, "").positional().tokenize(0);
}

// False when reading fails.
bool printLines(std::istream& in, unsigned count, bool isNumbered) {
    std::string line;
    for (unsigned number = 0; number < count && std::getline(in, line);) {
        ++number;
        if (isNumbered) {
            std::cout << number << '\t';
        }
        std::cout << line << '\n';
    }
    return !in.bad();
}

ExitCode printFiles(zarn::IParseResult& result) {
    const unsigned count = result.get("lines", 0, lineEnd).value.get<unsigned>();
    const bool isNumbered = result.present("number", 0, lineEnd);

    zarn::Value file = result.get("file", 0, lineEnd);
    if (file.text == nullptr) {
        return printLines(std::cin, count, isNumbered) ? exitOk : exitFile;
    }
    ExitCode code = exitOk;
    for (; file.status == zarn::statusFound; file = result.next("file")) {
        std::ifstream in(file.text);
        if (!in.is_open() || !printLines(in, count, isNumbered)) {
            std::cerr << "minimal: cannot read '" << file.text << "'\n";
            code = exitFile;
        }
    }
    return code;
}

ExitCode run(zarn::IParser& parser, zarn::IParseResult& result, int argc, char** argv) {
    declareVocabulary(parser);
    if (parser.parseArgsVector(argc, argv, &result) != zarn::resultOk) {
        std::cerr << "minimal: " << parser.getErrorDesc() << "\nTry 'minimal --help'.\n";
        return exitUsage;
    }
    if (result.present("help", 0, lineEnd)) {
        std::cout << "Usage: minimal [option ...] [--] [file ...]\n\n"
                  << parser.getDescription(false);
        return exitOk;
    }
    return printFiles(result);
}

}  // namespace

int main(int argc, char** argv) {
    // A misspelt option is an error and no file; files that begin with a dash stand behind "--".
    const int flags = zarn::flagUnknownIsError | zarn::flagPositionalWithoutDash |
                      zarn::flagPositionalBehindTerminator;
    zarn::IParser* parser = nullptr;
    if (zarn::createParser(&parser, flags) != zarn::resultOk) {
        return exitInternal;
    }
    ExitCode code = exitInternal;
    zarn::IParseResult* result = nullptr;
    if (parser->createResult(&result) == zarn::resultOk) {
        code = run(*parser, *result, argc, argv);
        result->destroy();
    }
    parser->destroy();
    return std::cout.flush() ? code : exitFile;
}
