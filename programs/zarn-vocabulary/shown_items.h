// The items of a description that its readers are to see: not those that are hidden, nor those that
// cannot be given since they have no name.

#ifndef ZARN_VOCABULARY_SHOWN_ITEMS_H
#define ZARN_VOCABULARY_SHOWN_ITEMS_H

#include <string>
#include <vector>

#include "description.h"

namespace vocabulary {

// They refer to the description. All but places have names.
class ShownItems {
public:
    explicit ShownItems(const Description& description);

    const std::vector<const Item*>& all() const { return shown_; }
    const std::vector<const Item*>& actions() const { return actions_; }
    // Those that take the arguments that are no options.
    const std::vector<const Item*>& places() const { return places_; }

    // Whether the item may be given with this action; none: with whatever action.
    static bool goesWith(const Item& item, const Item* action);

private:
    std::vector<const Item*> shown_;
    std::vector<const Item*> actions_;
    std::vector<const Item*> places_;
};

// Whether a value follows the name.
bool takesValue(const Item& item);

// What stands for the value.
std::string valueNameOf(const Item& item);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_SHOWN_ITEMS_H
