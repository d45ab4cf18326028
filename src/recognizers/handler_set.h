// The registered event handlers.

#ifndef ZARN_RECOGNIZERS_HANDLER_SET_H
#define ZARN_RECOGNIZERS_HANDLER_SET_H

#include <functional>
#include <set>

namespace zarn_3_3 {

class EventHandler;

namespace internal {

// Ordered by address; not owned.
class HandlerSet {
public:
    bool isEmpty() const { return handlers_.empty(); }

    // False when it is there already. Throws std::bad_alloc.
    bool add(EventHandler* handler) { return handlers_.insert(handler).second; }

    // False when it is not there.
    bool remove(EventHandler* handler) { return handlers_.erase(handler) != 0; }

    // Calls visit(handler) in ascending order of the addresses until one answers false.
    //
    // A visit may add and remove handlers: whoever is there before and after is visited once, and
    // whoever was removed is not visited any more.
    template <typename Visit>
    void visitWhile(Visit visit) const {
        auto at = handlers_.begin();
        while (at != handlers_.end()) {
            EventHandler* const visited = *at;
            if (!visit(*visited)) {
                return;
            }
            at = handlers_.upper_bound(visited);
        }
    }

private:
    std::set<EventHandler*, std::less<>> handlers_;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_HANDLER_SET_H
