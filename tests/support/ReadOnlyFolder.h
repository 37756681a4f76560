#pragma once

#include "support/BoundByPermissions.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace vantrel::tests {

/// Nothing can be created, replaced or removed in a folder while this lives; its subfolders stay
/// open to everybody.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(std::string folder) : folder_(std::move(folder)) {
        using std::filesystem::perms;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            if (entry.is_directory())
                std::filesystem::permissions(entry, perms::all);
        std::filesystem::permissions(folder_, readAndEnter);
        bound_.emplace();
    }
    ~ReadOnlyFolder() {
        bound_.reset();
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

  private:
    static constexpr auto readAndEnter = static_cast<std::filesystem::perms>(0555);
    std::string folder_;
    std::optional<BoundByPermissions> bound_;
};

} // namespace vantrel::tests
