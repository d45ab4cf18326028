#include "typed/tool_under_test.h"

namespace zarn_3_3 {
namespace {

template <typename T>
void add(std::ostream& out, const char* name, const T& value, const T& before) {
    if (!(value == before)) {
        out << name << '=' << value << ' ';
    }
}

}  // namespace

std::string Settings::changed() const {
    const Settings before;
    std::ostringstream out;
    add(out, "jobs", jobs, before.jobs);
    add(out, "level", level, before.level);
    add(out, "size", size, before.size);
    add(out, "color", color, before.color);
    add(out, "quiet", quiet, before.quiet);
    add(out, "verbosity", verbosity, before.verbosity);
    add(out, "ratio", ratio.value_or(-1), -1.0);
    add(out, "point", point ? Conversion<Point>::write(*point) : "", std::string());
    add(out, "mode", Conversion<Mode>::write(mode), std::string("fast"));
    add(out, "former", Conversion<Mode>::write(former), std::string("fast"));
    add(out, "timeout", timeout.count(), before.timeout.count());
    add(out, "target", target.string(), std::string());
    for (const long number : numbers) {
        out << "number=" << number << ' ';
    }
    for (const std::string& file : files) {
        add(out, "file", file, std::string("none"));
    }
    return out.str();
}

void declareSettings(Parser& parser, Settings& settings) {
    parser.declare(
        "Output",
        {
            option<int>("jobs,j", "How many at a time.")
                .between(1, 64)
                .check([](int jobs) { return jobs != 13; }, "it must be a lucky number")
                .fromEnvironment("TOOL_JOBS")
                .into(settings.jobs)
                .byDefault(),
            option<short>("level,l", "How hard.").atLeast(-3).into(settings.level),
            option<Bytes>("size,s", "How large.").atMost(Bytes{1 << 20}).into(settings.size),
            option<bool>("color", "Use colours.")
                .fromEnvironment("TOOL_COLOR")
                .into(settings.color),
            option("quiet,q", "Say nothing.").into(settings.quiet),
            option("verbose,v", "Say more.").into(settings.verbosity),
            option<double>("ratio", "What to reach.").into(settings.ratio),
            option<Point>("point", "Where.").into(settings.point).cutAt(';'),
            option<Mode>("mode", "How.").into(settings.mode),
            option<Mode>("former", "How, once.")
                .deprecate("slow", Mode::thorough)
                .into(settings.former)
                .byDefault(),
            option<std::chrono::milliseconds>("timeout,t", "How long.")
                .into(settings.timeout)
                .byDefault(),
            option<std::string>("target", "Where to.").into(settings.target),
            option<long>("number", "Any.").cutAt(',').into(settings.numbers),
            positional("file", "The files.").named("FILE").into(settings.files),
        });
    parser.readOptionFiles("Further options.");
}

}  // namespace zarn_3_3
