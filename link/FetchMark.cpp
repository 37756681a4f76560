#include "link/FetchMark.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Files.h"

#include <charconv>
#include <cstddef>
#include <system_error>
#include <vector>

namespace vantrel {
namespace {

/// Bytes; with a suffix behind it a file system still takes it, and a message shows it whole.
constexpr std::size_t longestStem = 180;
constexpr std::size_t shortenedStem = longestStem / 4; ///< characters, of at most four bytes
constexpr std::string_view firstLine = "Vantrel fetch 1";
constexpr std::string_view lastLine = "end";

/// Tells contents, and long names with the same beginning, apart (FNV-1a).
std::uint64_t digestOf(std::string_view bytes) {
    std::uint64_t digest = 14695981039346656037U;
    for (const char byte : bytes)
        digest = (digest ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return digest;
}

std::string stemOf(std::string_view name) {
    if (name.size() <= longestStem)
        return std::string(name);
    return std::string(firstCharacters(name, shortenedStem)) + "~" + std::to_string(digestOf(name));
}

std::optional<std::uint64_t> numberIn(std::string_view text) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

} // namespace

KnownContent KnownContent::of(std::string_view content) {
    return {content.size(), digestOf(content)};
}

std::optional<KnownContent> KnownContent::parse(std::string_view size, std::string_view digest) {
    const auto sizeNumber = numberIn(size);
    const auto digestNumber = numberIn(digest);
    if (!sizeNumber || !digestNumber)
        return {};
    return KnownContent{*sizeNumber, *digestNumber};
}

bool KnownContent::isIn(const std::string& path) const {
    if (!isRegularFile(path))
        return false;
    const auto content = readFile(path);
    return content && of(*content) == *this;
}

std::string FetchMark::fileNameFor(std::string_view name) {
    return std::string(namePrefix) + std::to_string(digestOf(comparedName(name)));
}

bool FetchMark::isFileName(std::string_view name) {
    return name.starts_with(namePrefix);
}

std::string FetchMark::format() const {
    std::string text;
    for (const std::string& line : {std::string(firstLine), name, aside, std::to_string(old.size),
                                    std::to_string(old.digest), std::string(lastLine)})
        text += line + "\n";
    return text;
}

// Anybody can put such a file into a folder: no name in it leads out of the folder, or to a file
// that a fetch would not have set aside.
std::optional<FetchMark> FetchMark::parse(std::string_view content) {
    const std::vector<std::string_view> line = lines(content);
    if (line.size() != 6 || line.front() != firstLine || line.back() != lastLine)
        return {};
    const auto old = KnownContent::parse(line[3], line[4]);
    FetchMark mark{std::string(line[1]), std::string(line[2]), old.value_or(KnownContent())};
    const bool isAside = mark.aside.empty() ||
                         (PathRules::isPlainName(mark.aside) &&
                          mark.aside.starts_with(stemOf(mark.name) + std::string(replacedSuffix)));
    if (!old || !PathRules::isPlainName(mark.name) || !isAside)
        return {};
    return mark;
}

bool FetchMark::isTorn(std::string_view content) {
    if (content.find_first_not_of('\0') == std::string_view::npos)
        return true;
    const bool hasEnd = content.ends_with(std::string(lastLine) + "\n");
    return !hasEnd && (content.starts_with(firstLine) || firstLine.starts_with(content));
}

std::string freeSpareName(const std::string& folder, const std::string& name,
                          std::string_view suffix) {
    const std::string start = stemOf(name) + std::string(suffix);
    int number = 1;
    while (anythingExists(PathRules().join(folder, start + std::to_string(number))))
        ++number;
    return start + std::to_string(number);
}

} // namespace vantrel
