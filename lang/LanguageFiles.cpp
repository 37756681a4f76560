#include "lang/LanguageFiles.h"

#include "base/Numbers.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <tuple>

namespace vantrel {
namespace {

/// The positions of the first four double quotes, or nothing when there are fewer.
std::optional<std::array<std::size_t, 4>> fourQuotes(std::string_view line) {
    std::array<std::size_t, 4> quotes{};
    std::size_t from = 0;
    for (auto& quote : quotes) {
        quote = line.find('"', from);
        if (quote == std::string_view::npos)
            return std::nullopt;
        from = quote + 1;
    }
    return quotes;
}

std::optional<std::int16_t> messageNumber(std::string_view text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double number = std::trunc(leadingNumber(text));
    if (!(number >= Limits::min() && number <= Limits::max()))
        return std::nullopt;
    return static_cast<std::int16_t>(number);
}

std::optional<MessageEntry> parseEntry(std::string_view line) {
    const auto quotes = fourQuotes(line);
    if (!quotes)
        return std::nullopt;
    const auto number = messageNumber(line.substr(0, quotes->front()));
    if (!number)
        return std::nullopt;
    const auto between = [&](std::size_t open, std::size_t close) {
        return std::string(line.substr(open + 1, close - open - 1));
    };
    return MessageEntry{*number, between((*quotes)[0], (*quotes)[1]),
                        between((*quotes)[2], (*quotes)[3])};
}

constexpr std::string_view extension = ".lng";

bool isLanguageFile(const FolderEntry& entry) {
    return !entry.isFolder && entry.name.size() > extension.size() &&
           PathRules::isPlainName(entry.name) &&
           equalsIgnoringAsciiCase(entry.name.substr(entry.name.size() - extension.size()),
                                   extension);
}

/// By name whatever the letter case, and "System", the last resort, after all real languages.
bool listedBefore(const std::string& left, const std::string& right) {
    const auto key = [](const std::string& name) {
        auto folded = asciiLower(name);
        const bool isSystem = folded == "system";
        return std::tuple(isSystem, std::move(folded), name);
    };
    return key(left) < key(right);
}

} // namespace

std::vector<MessageEntry> parseLanguageFile(std::string_view bytes) {
    const auto decoded = decodeText(bytes);
    const auto all = lines(decoded.text);
    auto line = std::find(all.begin(), all.end(), "Start:");

    std::vector<MessageEntry> entries;
    if (line == all.end())
        return entries;
    while (++line != all.end()) {
        if (line->starts_with(';'))
            continue;
        if (auto entry = parseEntry(*line))
            entries.push_back(std::move(*entry));
    }
    return entries;
}

bool LanguageFiles::exists(const std::string& languageName) const {
    return !pathOf(languageName).empty();
}

std::string LanguageFiles::pathOf(const std::string& languageName) const {
    const auto fileName = languageName + std::string(extension);
    // The name comes from the settings file: it must not lead out of the folder.
    if (languageName.empty() || !PathRules::isPlainName(fileName))
        return {};
    const auto spelling = findIgnoringCase(folder_, fileName);
    if (spelling.empty())
        return {};
    auto path = PathRules().join(folder_, spelling);
    return isRegularFile(path) ? path : std::string{};
}

Outcome LanguageFiles::readInto(const std::string& languageName, MessageTable& table) const {
    const auto path = pathOf(languageName);
    if (path.empty())
        return Failure{languageName + std::string(extension)};
    const auto bytes = readFile(path);
    if (!bytes)
        return Failure{bytes.reason()};
    table.replace(parseLanguageFile(*bytes));
    return Done{};
}

std::vector<std::string> LanguageFiles::names() const {
    std::vector<std::string> found;
    // A folder that cannot be listed has no languages to offer.
    (void)visitFolder(folder_, [&](const FolderEntry& entry) {
        if (isLanguageFile(entry))
            found.emplace_back(entry.name.substr(0, entry.name.size() - extension.size()));
    });
    std::sort(found.begin(), found.end(), listedBefore);
    return found;
}

} // namespace vantrel
