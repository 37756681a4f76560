#include "link/ReplacedFile.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Files.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vantrel {
namespace {

constexpr std::size_t longestStem = 200; ///< bytes; leaves room for the marks behind it
constexpr std::size_t shortenedStem = longestStem / 4; ///< characters, of at most four bytes

std::string pathOf(const std::string& folder, const std::string& name) {
    return PathRules().join(folder, name);
}

/// A number that tells long names with the same beginning apart (FNV-1a).
std::string digestOf(const std::string& name) {
    std::uint64_t digest = 14695981039346656037U;
    for (const char byte : name)
        digest = (digest ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return std::to_string(digest);
}

/// What the other name of a file begins with: its own name, or when that is too long to take an
/// addition, the beginning of it and a digest of the whole.
std::string stemOf(const std::string& name) {
    if (name.size() <= longestStem)
        return name;
    return std::string(firstCharacters(name, shortenedStem)) + "~" + digestOf(name);
}

/// Not a name that a job or a list could have.
std::string asideNameOf(const std::string& name, int number) {
    return stemOf(name) + ".replaced-" + std::to_string(number);
}

/// The first number whose name is free.
int freeNumber(const std::string& folder, const std::string& name) {
    int number = 1;
    while (anythingExists(pathOf(folder, asideNameOf(name, number))))
        ++number;
    return number;
}

/// A plain file that its permissions let somebody write. They are looked at themselves: an
/// administrator may write everything, but the operator has locked the file all the same.
bool isReplaceable(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const auto status =
        fs::symlink_status(fs::path(std::u8string(path.begin(), path.end())), error);
    constexpr auto writable =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return !error && fs::is_regular_file(status) &&
           (status.permissions() & writable) != fs::perms::none;
}

} // namespace

ReplacedFile::ReplacedFile(std::string folder, std::string name)
    : folder_(std::move(folder)), name_(std::move(name)) {
    const std::string path = pathOf(folder_, name_);
    if (!anythingExists(path))
        return;
    const std::string aside = asideNameOf(name_, freeNumber(folder_, name_));
    ready_ = isReplaceable(path) && renameFile(path, pathOf(folder_, aside));
    if (ready_)
        aside_ = aside;
}

// Read whole: what the disk does not give back is no copy for which a move may give up the
// original.
bool ReplacedFile::hasArrived() const {
    const auto content = readFile(pathOf(folder_, name_));
    return content && !content->empty();
}

void ReplacedFile::keep() {
    decided_ = true;
    // Beside a complete file a leftover does no harm. Should that file go one day, the next fetch
    // will take the leftover for its old version and put it back, and ask before it is replaced.
    if (!aside_.empty())
        static_cast<void>(removeFile(pathOf(folder_, aside_)));
}

Outcome ReplacedFile::putBack() {
    if (decided_ || !ready_)
        return Done{};
    decided_ = true;
    const std::string path = pathOf(folder_, name_);
    if (!aside_.empty())
        return renameFile(pathOf(folder_, aside_), path);
    return anythingExists(path) ? removeFile(path) : Done{};
}

ReplacedFile::~ReplacedFile() {
    static_cast<void>(putBack());
}

// Of several the last one: it stood under the name most recently.
void putBackLeftover(const std::string& folder, const std::string& name) {
    const std::string path = pathOf(folder, name);
    if (anythingExists(path))
        return;
    const int last = freeNumber(folder, name) - 1;
    const std::string leftover = pathOf(folder, asideNameOf(name, last));
    if (last > 0 && isRegularFile(leftover))
        static_cast<void>(renameFile(leftover, path));
}

} // namespace vantrel
