#include "diff_command.h"

#include "comparison.h"
#include "description_reader.h"

namespace vocabulary {

void DiffCommand::declare(zarn::Parser& parser) {
    parser.declare({
        zarn::action("diff", "Tell what the second of two descriptions does to users of the first.")
            .into(isWanted_),
        zarn::modifier<std::string>(
            "ignore", "diff", "What is not told: ids, or 'id:item' for one item.")
            .named("ID")
            .cutAt(',')
            .into(ignored_),
    });
}

Answer DiffCommand::perform(const std::vector<std::string>& arguments) const {
    const Description before = readDescriptionFile(arguments[0]);
    const Description after = readDescriptionFile(arguments[1]);
    Changes changes({ignored_.begin(), ignored_.end()});
    compare(before, after, changes);
    return {changes.report(), changes.isBreaking() ? 1 : 0};
}

}  // namespace vocabulary
