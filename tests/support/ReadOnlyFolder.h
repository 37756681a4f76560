#pragma once

#include <filesystem>
#include <string>

#include <sys/fsuid.h>
#include <unistd.h>

namespace vantrel::tests {

/// Nothing can be created, replaced or removed in a folder while this lives; its subfolders stay as
/// they are. Permissions do not bind root, so as root the files are those of nobody meanwhile.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(std::string folder) : folder_(std::move(folder)) {
        using std::filesystem::perms;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            if (entry.is_directory())
                std::filesystem::permissions(entry, perms::all);
        std::filesystem::permissions(folder_, perms::owner_all | perms::others_exec |
                                                  perms::others_read | perms::group_read |
                                                  perms::group_exec);
        if (isRoot_)
            ::setfsuid(nobody);
        else
            std::filesystem::permissions(folder_, perms::owner_read | perms::owner_exec);
    }
    ~ReadOnlyFolder() {
        if (isRoot_)
            ::setfsuid(0);
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

  private:
    static constexpr uid_t nobody = 65534;
    std::string folder_;
    bool isRoot_ = ::geteuid() == 0;
};

} // namespace vantrel::tests
