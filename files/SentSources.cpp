#include "files/SentSources.h"

#include "base/PathRules.h"
#include "files/CommandResult.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/FetchMark.h"
#include "link/ShownText.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <utility>

namespace vantrel {
namespace {

/// Of the name that a source has while it is looked at.
constexpr std::string_view spareSuffix = ".sent-";

} // namespace

void SentSources::add(const std::string& name) {
    const DirectoryReading& reading = with_.session.lastReading();
    waiting_.push_back({name, with_.session.lastSent(), reading.number, reading.robot});
}

void SentSources::removeArrived() {
    const DirectoryReading& reading = with_.session.lastReading();
    std::vector<Source> waiting;
    for (Source& source : std::exchange(waiting_, {}))
        if (source.reading == reading.number || source.robot != reading.robot)
            waiting.push_back(std::move(source));
        else if (isShown(source.sent, reading))
            remove(source);
        else
            noteNotShown(source);
    waiting_ = std::move(waiting);
}

void SentSources::conclude() {
    removeArrived();
    tell(message::sentNotShown, notShown_);
    tell(message::notReplaced, lost_);
    std::vector<std::string> notKnown;
    for (const Source& source : waiting_)
        notKnown.push_back(source.name);
    tell(message::sentNotKnown, notKnown);
}

// Everything is compared, not the time alone: a file may be saved twice in one tick of its clock.
// The content is at hand, so no digest of it is needed, which two contents could share.
void SentSources::remove(const Source& source) {
    const std::string& path = source.sent.path;
    const PathRules rules;
    const std::string folder = rules.parent(path);
    const std::string spare = freeSpareName(folder, source.name, spareSuffix);
    const auto removed = removal_(path, rules.join(folder, spare), [&](const std::string& content) {
        return content == source.sent.content;
    });
    const bool isSavedAgain = removed && (!*removed || anythingExists(path));
    if (removed && !isSavedAgain)
        return;
    allWent_ = false;
    const TransferReports reports(with_);
    if (removed) {
        reports.aboutFile(source.name, message::sourceChanged);
        with_.results.note(source.name, ItemEnd::Failed,
                           with_.messages.getMessage(message::sourceChanged));
    } else if (anythingExists(rules.join(folder, spare))) {
        const std::string text = with_.messages.getMessage(message::oldFileKept) + bracketed(spare);
        with_.results.note(source.name, ItemEnd::Failed, text);
        reports.tell(bracketed(source.name) + text);
    } else
        reports.aboutFile(source.name, message::originalNotDeleted, removed.reason());
}

void SentSources::noteNotShown(const Source& source) {
    notShown_.push_back(source.name);
    const auto& deleted = source.sent.deleted;
    lost_.insert(lost_.end(), deleted.begin(), deleted.end());
}

void SentSources::tell(std::int32_t messageNumber, const std::vector<std::string>& names) {
    if (names.empty())
        return;
    allWent_ = false;
    for (const std::string& name : names)
        with_.results.note(name, ItemEnd::Failed, with_.messages.getMessage(messageNumber));
    TransferReports(with_).aboutFiles(messageNumber, names);
}

} // namespace vantrel
