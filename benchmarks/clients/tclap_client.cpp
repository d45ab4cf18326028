#include <tclap/CmdLine.h>

#include <string>

#include "client.h"

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
    const Values<std::string> values{
        name.getValue(), count.getValue(), ratio.getValue(), quiet.getValue(), file.getValue()};
    return values.print();
}
