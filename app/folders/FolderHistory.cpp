#include "app/folders/FolderHistory.h"

namespace vantrel {

void FolderHistory::visited(const std::string& folder) {
    if (!folders_.empty()) {
        if (folders_[at_] == folder)
            return;
        folders_.resize(at_ + 1);
    }
    folders_.push_back(folder);
    if (folders_.size() > most)
        folders_.erase(folders_.begin());
    at_ = folders_.size() - 1;
}

const std::string& FolderHistory::neighbour(int steps) const {
    return folders_.at(indexOf(steps));
}

void FolderHistory::step(int steps) {
    at_ = indexOf(steps);
}

void FolderHistory::forgetNeighbour(int steps) {
    const auto place = folders_.begin() + std::ptrdiff_t(indexOf(steps));
    folders_.erase(place);
    if (steps < 0)
        --at_;
    // What stood on its other side may be the folder that is shown.
    const std::size_t beyond = indexOf(steps);
    if (beyond < folders_.size() && folders_[beyond] == folders_[at_])
        forgetNeighbour(steps);
}

std::size_t FolderHistory::indexOf(int steps) const {
    return at_ + std::size_t(std::ptrdiff_t(steps));
}

} // namespace vantrel
