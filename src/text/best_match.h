// The search for the name that a user means.

#ifndef ZARN_TEXT_BEST_MATCH_H
#define ZARN_TEXT_BEST_MATCH_H

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace plinth2 {

// Walks over a list once, from its start to its end.
//
// The elements are borrowed and must outlive the iterator, or belong to a list that the iterator
// and its copies share.
template <typename T>
class generic_iterator_t {
public:
    generic_iterator_t() = default;
    explicit generic_iterator_t(const std::vector<T>& borrowed)
        : position(borrowed.data()), end(position + borrowed.size()) {}
    explicit generic_iterator_t(std::vector<T>&& owned)
        : shared(std::make_shared<const std::vector<T>>(std::move(owned))),
          position(shared->data()),
          end(position + shared->size()) {}

    bool atEnd() const { return position == end; }
    const T& current() const { return *position; }  // not at the end
    void advance() { ++position; }                  // not at the end

    // Walks over the current element alone.
    generic_iterator_t currentAlone() const {
        generic_iterator_t alone = *this;
        alone.end = position + 1;
        return alone;
    }

private:
    std::shared_ptr<const std::vector<T>> shared;
    const T* position = nullptr;
    const T* end = nullptr;
};

// Finds the candidates that `text` can stand for, leaves `matches` at the first of them and returns
// their number.
//
// A candidate equal to the text is the only match. Otherwise every distinct candidate that begins
// with the text is one, in the order of the candidates; nothing else matches, because a near miss
// must never be executed. Equal candidates count once.
//
// A single match is no copy: it lives as long as the candidates do.
int find_best_match(generic_iterator_t<std::string> candidates,
                    const std::string& text,
                    generic_iterator_t<std::string>& matches);

}  // namespace plinth2

#endif  // ZARN_TEXT_BEST_MATCH_H
