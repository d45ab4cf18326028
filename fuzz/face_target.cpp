// A tool of the modern face made of whatever bytes, and what must hold of its command lines.

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "bytes.h"
#include "support/failing_new.h"
#include "support/file_calls_double.h"
#include "zarn/typed.h"

namespace {

using namespace zarn;
using Input = fuzzing::Bytes;
using Line = std::vector<const char*>;
using Outcome = internal::Owner<internal::Outcome, &internal::releaseOutcome>;
using Vocabulary = internal::Owner<internal::Vocabulary, &internal::releaseVocabulary>;

struct Variables {
    int jobs = 2, verbosity = 0;
    bool hasColor = true;
    std::optional<double> ratio;
    std::chrono::milliseconds timeout{1000};
    std::string task, name = "none", source;
    std::vector<unsigned char> levels;
    std::vector<std::string> files{"none"};

    std::string list() const {
        std::ostringstream out;
        out << jobs << ' ' << verbosity << ' ' << hasColor << ' ' << ratio.value_or(-1) << ' '
            << timeout.count() << ' ' << task << ' ' << name << ' ' << source << ' '
            << std::string(levels.begin(), levels.end());
        for (const std::string& file : files) {
            out << '\0' << file;
        }
        return out.str();
    }
};

void expect(bool holds, const char* what) {
    if (!holds) {
        std::cerr << "Does not hold: " << what << std::endl;
        std::abort();
    }
}

// Does what may be a mistake of the author. Whether it is none.
template <typename Deed>
bool isRight(Deed deed) {
    try {
        deed();
        return true;
    } catch (const std::logic_error& told) {
        expect(std::string(told.what()).rfind("zarn: '", 0) == 0, "a mistake says where it is");
        return false;
    }
}

std::string oneOf(std::string_view words, Input& input) {
    const auto count = static_cast<std::size_t>(std::count(words.begin(), words.end(), ' ') + 1);
    for (std::size_t left = input.below(count); left > 0; --left) {
        words.remove_prefix(words.find(' ') + 1);
    }
    return std::string(words.substr(0, words.find(' ')));
}

void declareSome(const Vocabulary& to, Variables& v, Input& input) {
    const auto put = [&](Item item) {
        if (input.below(4) != 3) {
            isRight([&] { internal::declareItem(to.get(), "Section", item.take()); });
        }
    };
    const auto isEven = [](int number) { return number % 2 == 0; };
    const char* const its = input.below(3) == 2 ? "pack" : "";
    put(option(oneOf("help,h v no-color x,y,z,a -odd m,mode", input).c_str(), ""));
    put(option<int>("jobs,j", "").between(1, 64).fromEnvironment("ZARN_FUZZ").into(v.jobs));
    put(modifier("verbose,v", its, "").into(v.verbosity));
    put(option<bool>("color,c", "").fromEnvironment("ZARN_FUZZ").into(v.hasColor));
    put(option("all", "").stores(v.name, "all"));
    put(modifier<double>("ratio,r", its, "").into(v.ratio));
    put(option<std::chrono::milliseconds>("time", "").into(v.timeout).once());
    put(option<std::string>("name,n", "").allow({"none", "all"}).withoutValue("all").into(v.name));
    put(option<unsigned char>("level", "").cutAt(',').check(isEven, "no").into(v.levels));
    put(action("pack,p", "").stores(v.task, "pack"));
    put(action("list", "").stores(v.task, "list"));
    put(option("about", "").alone());
    if (const std::size_t rule = input.below(16); rule < 4) {
        put(modifier<int>("depth", "pack", "").required());
        put(positional("source", its, "").into(v.source));
        const char* const names[] = {"jobs", "verbose", "about"};
        internal::addRule(to.get(), static_cast<internal::RuleKind>(rule), names, 3);
    }
    put(positional("file", its, "").into(v.files));
}

std::string argumentFrom(Input& input) {
    const std::size_t kind = input.below(8);
    const std::string value = oneOf("7 f0 12 1.5 5s all no 8,10 -1 = a", input);
    const char* const names =
        "jobs verb color ratio time na pack list file level help version about option-file depth v";
    const std::string name = oneOf(names, input);
    const std::string dash = oneOf("-- - \xE2\x80\x93", input);
    return kind == 0   ? input.text(20)
           : kind == 1 ? value
                       : dash + name + (kind > 4 ? "=" + value : "");
}

// As Parser::run, which prints the answer. The allocation of this number fails, unless it is 0.
// What the tool sees, as one text; empty when it ends for want of memory, or was told less.
std::string run(const Vocabulary& vocabulary, Variables& variables, Line line, long failing) {
    variables = {};
    internal::Answer answer;
    memory.left = failing;
    try {
        const int count = static_cast<int>(line.size());
        const auto fit = [](HelpStyle&) {};
        const Outcome outcome(internal::runLine(vocabulary.get(), count, line.data(), answer, fit));
        internal::finishRun(outcome.get(), answer);
    } catch (const std::bad_alloc&) {
        answer = {"", "tool: out of memory\n", exitInternal};
    }
    memory.left = 0;
    const bool lackedMemory = std::exchange(memory.hasStruck, false);
    const auto& [output, error, code] = answer;
    expect(!code || variables.list() == Variables().list(), "variables are written all or none");
    expect(variables.jobs >= 1 && variables.jobs <= 64, "values lie between their bounds");
    expect(output.empty() == (code != exitAnswered), "help and version are printed, no more");
    const bool hasFailed = code && code != exitAnswered;
    expect(!hasFailed || code == exitUsage || code == exitUnreadable || lackedMemory,
           "exit codes are those that are documented");
    expect(hasFailed ? error.rfind("tool: ", 0) == 0 && error.back() == '\n' : error.empty(),
           "a failure is told by its tool, and nothing else is");
    // A failure is told without a suggestion then.
    return lackedMemory && code ? "" : output + error + variables.list();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zarn_3_3::testing_support;
    Input input(data, size);
    Variables variables;
    const int flags = input.below(4) == 3 ? static_cast<int>(input.below(64)) : usualFlags;
    const Vocabulary vocabulary(internal::createVocabulary({"tool", "1.0", ""}, flags));
    internal::acceptHabits(vocabulary.get(), static_cast<unsigned>(input.below(32)));
    internal::plainParser(vocabulary.get())->addOptionFileOption("", "");
    declareSome(vocabulary, variables, input);
    setenv("ZARN_FUZZ", input.text(6).c_str(), 1);
    fileCalls.files["f0"] = std::make_shared<MemoryFile>(MemoryFile{"file", argumentFrom(input)});
    const long failing = input.number<unsigned char>();
    std::vector<std::string> arguments{"tool"};
    while (!input.rest().empty()) {
        arguments.push_back(argumentFrom(input));
    }
    Line line;
    for (const std::string& argument : arguments) {
        line.push_back(argument.c_str());
    }

    std::string first;
    if (isRight([&] { first = run(vocabulary, variables, line, 0); })) {
        for (const long nth : {failing, 0L}) {
            const std::string again = run(vocabulary, variables, line, nth);
            expect(again == first || (nth != 0 && again.empty()), "the same line is read the same");
        }
    }
    return 0;
}
