#include <tclap/CmdLine.h>

#include <cstdio>
#include <string>

int main(int argc, char** argv) {
    using TCLAP::ValueArg;
    TCLAP::CmdLine commandLine("greets", '=', "1");
    ValueArg<std::string> name("", "name", "whom to greet", false, "world", "text", commandLine);
    ValueArg<int> count("", "count", "how often", false, 1, "number", commandLine);
    ValueArg<double> ratio("", "ratio", "how loud", false, 0.5, "number", commandLine);
    TCLAP::SwitchArg quiet("", "quiet", "say nothing", commandLine);
    TCLAP::UnlabeledValueArg<std::string> file(
        "file", "what to read", false, "", "text", commandLine);
    commandLine.parse(argc, argv);
    std::printf("%s %d %g %d %s\n",
                name.getValue().c_str(),
                count.getValue(),
                ratio.getValue(),
                quiet.getValue() ? 1 : 0,
                file.getValue().c_str());
    return 0;
}
