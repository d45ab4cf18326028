// Where recognisers put what they found.

#ifndef ZARN_RESULT_RESULT_COLLECTOR_H
#define ZARN_RESULT_RESULT_COLLECTOR_H

namespace zarn_3_3 {

class OptionDescription;
struct OptionData;

class IResultCollector {
public:
    // Records one occurrence of `option`, and takes the values out of `data`. Always 0. Throws
    // std::out_of_range for an option without names, and std::bad_alloc: the names written by then
    // stay written.
    virtual int store(const OptionDescription& option, OptionData& data) = 0;

protected:
    ~IResultCollector() = default;
};

}  // namespace zarn_3_3

#endif  // ZARN_RESULT_RESULT_COLLECTOR_H
