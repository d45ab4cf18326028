#include "options/item_indexes.h"

namespace zarn_3_3::internal {

PrefixIndex::Found ItemIndexes::findBeginning(std::string_view beginning, const OptionList& items) {
    if (beginnings_ == nullptr) {
        beginnings_ = std::make_unique<PrefixIndex>();
    }
    return beginnings_->find(beginning, names(items).forms());
}

}  // namespace zarn_3_3::internal
