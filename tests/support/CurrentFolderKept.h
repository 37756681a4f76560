#pragma once

#include <filesystem>

namespace vantrel::tests {

/// Goes back to the folder that was current before.
class CurrentFolderKept {
  public:
    CurrentFolderKept() = default;
    ~CurrentFolderKept() {
        std::error_code ignored;
        std::filesystem::current_path(path_, ignored);
    }
    CurrentFolderKept(const CurrentFolderKept&) = delete;
    CurrentFolderKept& operator=(const CurrentFolderKept&) = delete;

  private:
    std::filesystem::path path_ = std::filesystem::current_path();
};

} // namespace vantrel::tests
