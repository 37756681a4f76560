#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace vantrel::tests {

/// An empty folder of a test's own, removed with the object.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() /
                    ("vantrel-test-" + std::to_string(random()) + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Absolute, UTF-8, without a separator at the end.
    std::string path() const { return path_.string(); }
    std::string path(std::string_view name) const { return (path_ / name).string(); }

    /// Writes a file, creating the folders above it; returns its path.
    std::string write(std::string_view name, std::string_view content) const {
        const auto file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }
    std::string makeFolder(std::string_view name) const {
        std::filesystem::create_directories(path_ / name);
        return path(name);
    }
    std::string read(std::string_view name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    bool has(std::string_view name) const { return std::filesystem::exists(path_ / name); }

  private:
    std::filesystem::path path_;
};

} // namespace vantrel::tests
