#include "simulator/PlainFiles.h"

#include "platform/Files.h"

#include <filesystem>

namespace vantrel::simulator {

namespace {

std::filesystem::file_type typeOf(const std::string& path) {
    std::error_code ignored; // the type says it: `none`
    const auto native = std::filesystem::path(std::u8string(path.begin(), path.end()));
    return std::filesystem::symlink_status(native, ignored).type();
}

} // namespace

bool isPlainFile(const std::string& path) {
    return typeOf(path) == std::filesystem::file_type::regular;
}

bool isFreeOrPlainFile(const std::string& path) {
    const auto type = typeOf(path);
    return type == std::filesystem::file_type::not_found ||
           type == std::filesystem::file_type::regular;
}

Outcome writePlainFile(const std::string& path, std::string_view content) {
    if (!isFreeOrPlainFile(path))
        return Failure{"not a plain file"};
    return replaceFile(path, content);
}

} // namespace vantrel::simulator
