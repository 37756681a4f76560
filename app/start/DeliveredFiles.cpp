#include "app/start/DeliveredFiles.h"

#include "base/PathRules.h"
#include "files/FolderScan.h"
#include "platform/Environment.h"
#include "platform/Files.h"

#include <set>
#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view newEnding = ".new";
constexpr std::string_view placingEnding = ".placing";
/// The name of a function that only the simulator exports.
constexpr std::string_view simulatorMark = "ZurolinkSimulator";

bool holds(const std::string& path, const std::string& content) {
    const auto there = readFile(path);
    return there && *there == content;
}

/// The first name that is free or holds the same already.
std::string nameToKeepUnder(const std::string& path, const std::string& content) {
    std::string kept = path + ".old";
    for (int number = 2; anythingExists(kept) && !holds(kept, content); ++number)
        kept = path + ".old" + std::to_string(number);
    return kept;
}

} // namespace

DeliveredFiles::DeliveredFiles(std::string programFolder)
    : folder_(std::move(programFolder)), installed_(PathRules().join(folder_, deliveredFolder)) {}

std::vector<UndeliveredFile>
DeliveredFiles::takePlaces(const std::vector<std::string>& names) const {
    std::vector<UndeliveredFile> failed;
    // Another program that starts at the same time may have been faster.
    for (const auto& name : names)
        if (const Outcome placed = place(name); !placed && isWaiting(name))
            failed.push_back({PathRules().join(folder_, name), placed.reason()});
    return failed;
}

std::string DeliveredFiles::installed(const std::string& name, std::string_view ending) const {
    return PathRules().join(installed_, name + std::string(ending));
}

std::vector<std::string> DeliveredFiles::waiting() const {
    std::set<std::string> names;
    // Without that folder nothing has been delivered.
    (void)visitNames(installed_, [&](std::string_view name) {
        for (const auto ending : {newEnding, placingEnding})
            if (name.size() > ending.size() && name.ends_with(ending))
                names.emplace(name.substr(0, name.size() - ending.size()));
    });
    return {names.begin(), names.end()};
}

bool DeliveredFiles::isWaiting(const std::string& name) const {
    return anythingExists(installed(name, newEnding)) ||
           anythingExists(installed(name, placingEnding));
}

/// By this version or by the one before it, whose placing may have been cut short.
bool DeliveredFiles::isDelivered(const std::string& name, const std::string& content) const {
    return holds(installed(name), content) || holds(installed(name, newEnding), content) ||
           holds(installed(name, placingEnding), content);
}

/// The new file, else the one whose placing has begun.
Result<std::string> DeliveredFiles::delivered(const std::string& name) const {
    auto content = readFile(installed(name, newEnding));
    if (!content && !anythingExists(installed(name, newEnding)))
        content = readFile(installed(name, placingEnding));
    // What unpacked it was cut short, or the disk was full.
    if (content && content->empty())
        return Failure{"The delivered file is empty"};
    return content;
}

Outcome DeliveredFiles::place(const std::string& name) const {
    return name == libraryFileName() ? placeLibrary() : placeText(name);
}

Outcome DeliveredFiles::placeText(const std::string& name) const {
    const auto content = delivered(name);
    if (!content)
        return Failure{content.reason()};
    const auto path = PathRules().join(folder_, name);
    const bool isThere = anythingExists(path);
    const auto there = isThere ? readFile(path) : std::string();
    if (!there)
        return Failure{there.reason()};
    const bool isChanged = isThere && !isDelivered(name, *there);
    if (Outcome begun = begin(name); !begun)
        return begun;
    if (isChanged)
        if (Outcome kept = replaceFile(nameToKeepUnder(path, *there), *there); !kept)
            return kept;
    if (!isThere || *there != *content)
        if (Outcome replaced = replaceFile(path, *content); !replaced)
            return replaced;
    return renameFile(installed(name, placingEnding), installed(name));
}

/// Fails unless the text can be remembered afterwards, so that it is not placed at each start anew,
/// over what the operator has changed since: what is remembered is written once more, as it is.
Outcome DeliveredFiles::begin(const std::string& name) const {
    if (anythingExists(installed(name))) {
        const auto remembered = readFile(installed(name));
        if (!remembered)
            return Failure{remembered.reason()};
        if (Outcome written = replaceFile(installed(name), *remembered); !written)
            return written;
    }
    Outcome begun = renameFile(installed(name, newEnding), installed(name, placingEnding));
    // An earlier start or another program may have begun already.
    return begun || anythingExists(installed(name, newEnding)) ? begun : Done{};
}

/// In one step, so that nothing is left half done.
Outcome DeliveredFiles::placeLibrary() const {
    const auto path = PathRules().join(folder_, libraryFileName());
    const auto waits = installed(libraryFileName(), newEnding);
    if (anythingExists(path)) {
        const auto there = readFile(path);
        if (!there)
            return Failure{there.reason()};
        if (there->find(simulatorMark) == std::string::npos)
            return removeFile(waits);
    }
    if (const auto content = delivered(libraryFileName()); !content)
        return Failure{content.reason()};
    return renameFile(waits, path);
}

} // namespace vantrel
