// The client's handle on one declared item, on which its settings are chained.

#ifndef ZARN_OPTION_H
#define ZARN_OPTION_H

#include "zarn/export.h"
#include "zarn/value.h"

namespace zarn_3_3 {

// One action, modifier, global or positional option of a parser.
//
// Ownership: the parser owns the item. The reference is valid until the next declaration on the
// same parser, or until the parser is destroyed: finish the chain before you declare the next item.
// A declaration that was refused (a name that is taken, too many names) hands out a stand-in whose
// settings have no effect.
//
// Exceptions: none leaves these operations; one that runs out of memory leaves the item as it was.
//
// The order of the operations is part of the binary interface.
class ZARN_EXPORT IOption {
public:
    // Adds `name` to the names of the item, as it stands and without dashes; null adds nothing. Not
    // refused when another item has it: the one declared first is then found by it.
    virtual IOption& synonym(const char* name) = 0;

    // Adds a value to those that the item accepts; with none, it accepts every value of its type.
    // The value is copied (see variant_t on borrowed texts).
    //
    // Users may abbreviate a text: "tho" stands for "thorough" where no other allowed or deprecated
    // value begins so. Values are cut at ',' from now on, unless another character was chosen
    // before; call tokenize(0) afterwards to keep commas.
    virtual IOption& allowValue(const variant_t& value) = 0;

    // Accepts `deprecated` too, with a warning on the error stream that names `replacement`: the
    // value stays the deprecated one. Has no effect on an item without allowed values. The first
    // replacement given for a value stays.
    virtual IOption& allowDeprecatedValue(const variant_t& deprecated,
                                          const variant_t& replacement) = 0;

    // What queries answer for the item when it was not given. It should be of the type of the item;
    // neither this nor the allowed values are checked. A default whose text is empty reads as
    // absent.
    virtual IOption& defaultValue(const variant_t& value) = 0;

    // The character at which one value is cut into several; 0: values are never cut. With ':' the
    // argument "--path=a:b" gives two values.
    virtual IOption& tokenize(char separator) = 0;

    // Makes the item take the arguments that are no options. Of several such items the one declared
    // first takes them all. Positional items are not listed in help.
    virtual IOption& positional() = 0;

    // Adds tags, separated by ','; null adds none. An item with tags that is no action is a
    // modifier of the actions with these names, and is refused with every other action.
    virtual IOption& tag(const char* tags) = 0;

protected:
    virtual ~IOption() = default;
};

}  // namespace zarn_3_3

#endif  // ZARN_OPTION_H
