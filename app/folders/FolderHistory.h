#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vantrel {

/// The folders that were shown one after the other, and which of them is shown now. Going back
/// keeps those that come after, until another folder is shown.
class FolderHistory {
  public:
    /// Shown now; the one that is shown already is not entered twice.
    void visited(const std::string& folder);

    bool hasBack() const { return at_ > 0; }
    bool hasForward() const { return at_ + 1 < folders_.size(); }
    /// The folder that many steps from the one shown now, in the direction of the sign; it is
    /// there.
    const std::string& neighbour(int steps) const;
    /// Makes that one the folder that is shown now.
    void step(int steps);
    /// Takes that one out, which is no more; the folder that is shown now stays it.
    void forgetNeighbour(int steps);

  private:
    std::size_t indexOf(int steps) const;

    static constexpr std::size_t most = 100;
    std::vector<std::string> folders_;
    std::size_t at_ = 0; ///< of the one shown now, once there is one
};

} // namespace vantrel
