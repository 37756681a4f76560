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
        // A session enters its program's folder, and Windows removes no folder that somebody is in.
        if (std::filesystem::current_path(ignored) == path_)
            std::filesystem::current_path(path_.parent_path(), ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Absolute, UTF-8, without a separator at the end.
    std::string path() const { return text(path_); }
    std::string path(std::string_view name) const { return text(file(name)); }

    /// Writes a file, creating the folders above it; returns its path.
    std::string write(std::string_view name, std::string_view content) const {
        std::filesystem::create_directories(file(name).parent_path());
        std::ofstream(file(name), std::ios::binary) << content;
        return path(name);
    }
    std::string makeFolder(std::string_view name) const {
        std::filesystem::create_directories(file(name));
        return path(name);
    }
    std::string read(std::string_view name) const {
        std::ifstream content(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(content), {}};
    }
    bool has(std::string_view name) const { return std::filesystem::exists(file(name)); }

  private:
    /// Names are UTF-8 whatever the system's own encoding.
    std::filesystem::path file(std::string_view name) const {
        return (path_ / std::u8string(name.begin(), name.end())).make_preferred();
    }
    static std::string text(const std::filesystem::path& path) {
        const auto utf8 = path.u8string();
        return {utf8.begin(), utf8.end()};
    }

    std::filesystem::path path_;
};

} // namespace vantrel::tests
