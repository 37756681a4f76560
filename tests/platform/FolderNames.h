#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace vantrel::tests {

/// What is in a folder, found without the functions that are tested here.
inline std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    const std::filesystem::path path(std::u8string(folder.begin(), folder.end()));
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
        const auto name = entry.path().filename().u8string();
        names.emplace(name.begin(), name.end());
    }
    return names;
}

} // namespace vantrel::tests
