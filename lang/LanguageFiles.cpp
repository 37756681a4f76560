#include "lang/LanguageFiles.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "lang/LanguageFile.h"
#include "lang/MessageTable.h"
#include "platform/Files.h"

#include <algorithm>
#include <tuple>

namespace vantrel {

namespace {

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
