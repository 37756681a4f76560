#include "app/start/DeliveredFiles.h"

#include "base/PathRules.h"
#include "platform/Environment.h"
#include "platform/Files.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view newEnding = ".new";
/// The name of a function that only the simulator exports.
constexpr std::string_view simulatorMark = "ZurolinkSimulator";
constexpr int maximumKept = 9;

std::string numbered(const std::string& path, int number) {
    return path + ".old" + (number == 1 ? std::string() : std::to_string(number));
}

bool holds(const std::string& path, const std::string& content) {
    const auto there = readFile(path);
    return there && *there == content;
}

/// The first name that is free or holds the same already, else the last one.
std::string nameToKeepUnder(const std::string& path, const std::string& content) {
    int number = 1;
    while (number < maximumKept && anythingExists(numbered(path, number)) &&
           !holds(numbered(path, number), content))
        ++number;
    return numbered(path, number);
}

} // namespace

DeliveredFiles::DeliveredFiles(std::string programFolder)
    : folder_(std::move(programFolder)), installed_(PathRules().join(folder_, ".installed")) {}

std::vector<UndeliveredFile> DeliveredFiles::takePlaces() const {
    std::vector<UndeliveredFile> failed;
    // Another program that starts at the same time may have been faster.
    for (const auto& name : waiting())
        if (const Outcome placed = place(name); !placed && anythingExists(deliveredAs(name)))
            failed.push_back({PathRules().join(folder_, name), placed.reason()});
    return failed;
}

std::string DeliveredFiles::deliveredAs(const std::string& name) const {
    return PathRules().join(installed_, name + std::string(newEnding));
}

std::vector<std::string> DeliveredFiles::waiting() const {
    std::vector<std::string> names;
    // Without that folder nothing has been delivered.
    (void)visitNames(installed_, [&](std::string_view name) {
        if (name.size() > newEnding.size() && name.ends_with(newEnding))
            names.emplace_back(name.substr(0, name.size() - newEnding.size()));
    });
    std::ranges::sort(names);
    return names;
}

Outcome DeliveredFiles::place(const std::string& name) const {
    return name == libraryFileName() ? placeLibrary() : placeText(name);
}

Outcome DeliveredFiles::placeText(const std::string& name) const {
    const auto path = PathRules().join(folder_, name);
    const auto remembered = PathRules().join(installed_, name);
    const auto delivered = readFile(deliveredAs(name));
    if (!delivered)
        return Failure{delivered.reason()};
    if (anythingExists(path)) {
        const auto there = readFile(path);
        if (!there)
            return Failure{there.reason()};
        if (*there != *delivered && !holds(remembered, *there))
            if (Outcome kept = replaceFile(nameToKeepUnder(path, *there), *there); !kept)
                return kept;
    }
    if (Outcome replaced = replaceFile(path, *delivered); !replaced)
        return replaced;
    return renameFile(deliveredAs(name), remembered);
}

Outcome DeliveredFiles::placeLibrary() const {
    const auto path = PathRules().join(folder_, libraryFileName());
    if (anythingExists(path)) {
        const auto there = readFile(path);
        if (!there)
            return Failure{there.reason()};
        if (there->find(simulatorMark) == std::string::npos)
            return removeFile(deliveredAs(libraryFileName()));
    }
    return renameFile(deliveredAs(libraryFileName()), path);
}

} // namespace vantrel
