#include "simulator/Links.h"

#include <limits>

namespace vantrel::simulator {

std::optional<std::int16_t> Links::open(Link link) {
    if (links_.size() >= most)
        return std::nullopt;
    do {
        const bool atEnd = last_ == std::numeric_limits<std::int16_t>::max();
        last_ = atEnd ? std::int16_t{1} : static_cast<std::int16_t>(last_ + 1);
    } while (links_.contains(last_));
    links_.emplace(last_, std::move(link));
    return last_;
}

Link* Links::find(std::int16_t handle) {
    const auto found = links_.find(handle);
    return found == links_.end() ? nullptr : &found->second;
}

} // namespace vantrel::simulator
