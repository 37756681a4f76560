#include "console/Tally.h"

#include <numeric>

namespace vantrel {

void Tally::add(ItemEnd end, int cause) {
    ++counts_[static_cast<std::size_t>(end)];
    if (end != ItemEnd::Done && cause != exit_code::nothingDone)
        causes_.insert(cause);
    if (onAdded)
        onAdded(end, cause);
}

int Tally::exitCode() const {
    const std::size_t done = count(ItemEnd::Done);
    if (std::accumulate(counts_.begin(), counts_.end(), std::size_t{0}) == done)
        return exit_code::allDone;
    if (interrupted_)
        return exit_code::interrupted;
    if (done > 0)
        return exit_code::partlyDone;
    return causes_.size() == 1 ? *causes_.begin() : exit_code::nothingDone;
}

} // namespace vantrel
