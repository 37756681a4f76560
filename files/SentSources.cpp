#include "files/SentSources.h"

#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <utility>

namespace vantrel {

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
    const TransferReports reports(with_);
    const auto now = readSettledFile(source.sent.path);
    if (now && *now != source.sent.content) {
        allWent_ = false;
        reports.aboutFile(source.name, message::sourceChanged);
        return;
    }
    const Outcome removed = now ? removeFile(source.sent.path) : Outcome(Failure{now.reason()});
    if (removed)
        return;
    allWent_ = false;
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
    TransferReports(with_).aboutFiles(messageNumber, names);
}

} // namespace vantrel
