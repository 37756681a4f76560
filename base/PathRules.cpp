#include "base/PathRules.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace vantrel {

namespace {

constexpr std::size_t longestName = 255; ///< bytes

bool hasDriveColon(std::string_view path) {
    const auto start = firstCharacters(path, 2);
    return start.ends_with(':') && start.size() > firstCharacters(path, 1).size();
}

std::string_view separators(PathStyle style) {
    return style == PathStyle::Windows ? "\\/" : "/";
}

/// Where the run of separators at `start` ends.
std::size_t afterSeparators(std::string_view path, std::size_t start, PathStyle style) {
    return std::min(path.find_first_not_of(separators(style), start), path.size());
}

std::size_t nextSeparator(std::string_view path, std::size_t start, PathStyle style) {
    return std::min(path.find_first_of(separators(style), start), path.size());
}

/// The length of "\\server\share", or 0 for another path.
std::size_t shareLength(std::string_view path, PathStyle style) {
    if (style != PathStyle::Windows || afterSeparators(path, 0, style) != 2)
        return 0;
    const auto serverEnd = nextSeparator(path, 2, style);
    return nextSeparator(path, afterSeparators(path, serverEnd, style), style);
}

std::size_t driveLength(std::string_view path, PathStyle style) {
    if (style == PathStyle::Posix)
        return path.starts_with('/') ? 1 : 0;
    return hasDriveColon(path) ? firstCharacters(path, 2).size() : shareLength(path, style);
}

/// Drive or share and the separators behind it: what no parent goes beyond.
std::size_t rootLength(std::string_view path, PathStyle style) {
    return afterSeparators(path, driveLength(path, style), style);
}

std::string_view withoutTrailingSeparators(std::string_view path, PathStyle style) {
    const auto root = rootLength(path, style);
    const auto last = path.find_last_not_of(separators(style));
    return path.substr(0, std::max(root, last == path.npos ? 0 : last + 1));
}

/// What follows the last separator.
std::string_view lastComponent(std::string_view path, PathStyle style) {
    const auto last = path.find_last_of(separators(style));
    return last == path.npos ? path : path.substr(last + 1);
}

/// Names that Windows takes for a device, with any ending and whatever blanks before its point.
bool isDeviceName(std::string_view name) {
    static constexpr std::array<std::string_view, 7> devices{"CON",    "PRN",     "AUX",   "NUL",
                                                             "CONIN$", "CONOUT$", "CLOCK$"};
    static constexpr std::array<std::string_view, 12> digits{
        "1", "2", "3", "4", "5", "6", "7", "8", "9", "\u00B9", "\u00B2", "\u00B3"};
    const std::string stem = asciiUpper(trimmed(name.substr(0, name.find('.')), " "));
    if (std::ranges::find(devices, stem) != devices.end())
        return true;
    return (stem.starts_with("COM") || stem.starts_with("LPT")) &&
           std::ranges::find(digits, std::string_view(stem).substr(3)) != digits.end();
}

bool isForbidden(char32_t character) {
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    return isControl || std::u32string_view(U"\\/:*?\"<>|").find(character) != std::u32string::npos;
}

} // namespace

char PathRules::separator() const {
    return style_ == PathStyle::Windows ? '\\' : '/';
}

std::string_view PathRules::separators() const {
    return vantrel::separators(style_);
}

bool PathRules::isSeparator(char character) const {
    return separators().find(character) != std::string_view::npos;
}

std::string PathRules::withSeparator(std::string_view folder) const {
    if (folder.empty())
        return {};
    const auto last = folder.find_last_not_of(separators());
    std::string result(folder.substr(0, last == folder.npos ? 0 : last + 1));
    return result + separator();
}

std::string PathRules::join(std::string_view folder, std::string_view name) const {
    std::string result(folder);
    if (!folder.empty() && !isSeparator(folder.back()))
        result += separator();
    return result.append(name);
}

std::string PathRules::withoutTrailingSeparator(std::string_view path) const {
    if (!path.empty() && isSeparator(path.back()) && !isRoot(path))
        path.remove_suffix(1);
    return std::string(path);
}

bool PathRules::isAbsolute(std::string_view path) const {
    if (!path.empty() && isSeparator(path.front()))
        return true;
    return style_ == PathStyle::Windows && hasDriveColon(path);
}

bool PathRules::isRoot(std::string_view path) const {
    return !path.empty() && rootLength(path, style_) == path.size();
}

std::string PathRules::parent(std::string_view path) const {
    const auto own = withoutTrailingSeparators(path, style_);
    const auto above = own.substr(0, own.size() - lastComponent(own, style_).size());
    const auto root = own.substr(0, rootLength(own, style_));
    return std::string(above.size() < root.size() ? root
                                                  : withoutTrailingSeparators(above, style_));
}

std::string PathRules::lastName(std::string_view path) const {
    if (!isRoot(path))
        return std::string(lastComponent(withoutTrailingSeparators(path, style_), style_));
    const std::string root = drive(path);
    return root.empty() ? std::string(1, separator()) : root;
}

std::string PathRules::resolved(std::string_view path) const {
    const bool isWindows = style_ == PathStyle::Windows;
    if (isWindows && path.starts_with("\\\\?\\"))
        return std::string(path); // to be taken as it is written
    std::string start = isWindows ? drive(path) : std::string();
    path.remove_prefix(start.size());
    if (start.size() > 2) { // of a share
        std::ranges::replace(start, '/', '\\');
        const auto twice = [](char left, char right) { return left == '\\' && right == '\\'; };
        start.erase(std::unique(start.begin() + 1, start.end(), twice), start.end());
    }
    std::vector<std::string> names;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(separators()), path.size());
        std::string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name == ".." && !names.empty())
            names.pop_back();
        while (isWindows && !name.empty() && (name.back() == '.' || name.back() == ' '))
            name.remove_suffix(1);
        if (!name.empty() && name != "." && name != "..")
            names.emplace_back(name);
    }
    std::string resolved = start + separator();
    for (const std::string& name : names)
        resolved = join(resolved, name);
    return resolved;
}

std::string PathRules::drive(std::string_view path) const {
    return std::string(path.substr(0, driveLength(path, style_)));
}

std::string PathRules::shorten(std::string_view path, std::size_t maximumLength) const {
    if (codePoints(path).size() <= maximumLength)
        return std::string(path);
    std::string_view shortened = path;
    if (isSeparator(shortened.back()))
        shortened.remove_suffix(1);
    const std::string name(lastComponent(shortened, style_));
    if (style_ == PathStyle::Posix)
        return path.starts_with('/') ? "/.../" + name : name;
    const bool hasDrive = path.find(':') != path.npos;
    return hasDrive ? std::string(firstCharacters(path, 2)) + "\\...\\" + name : name;
}

bool PathRules::isPlainName(std::string_view name) {
    if (name.empty() || name.size() > longestName || name.ends_with('.') || name.ends_with(' '))
        return false;
    return isValidUtf8(name) && std::ranges::none_of(codePoints(name), isForbidden) &&
           !isDeviceName(name);
}

} // namespace vantrel
