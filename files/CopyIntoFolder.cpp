#include "files/CopyIntoFolder.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/CommandResult.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/GroupMark.h"
#include "link/OverwriteQuestion.h"
#include "platform/Files.h"

namespace vantrel {

CopyIntoFolder::CopyIntoFolder(const TransferServices& services)
    : with_(services), title_(with_.messages.getMessage(message::transferTitle)),
      progress_(with_, title_, with_.messages.resourceMessage(message::resource::transferring),
                {}) {}

CommandOutcome CopyIntoFolder::run(const std::vector<std::string>& paths) {
    for (std::size_t item = 0; item < paths.size() && !outcome_.cancelled; ++item) {
        outcome_.cancelled = !progress_.next(PathRules().lastName(paths[item]), item, paths.size());
        if (!outcome_.cancelled)
            take(paths[item]);
    }
    outcome_.succeeded = outcome_.succeeded && !outcome_.cancelled;
    return outcome_;
}

void CopyIntoFolder::take(const std::string& path) {
    const PathRules rules;
    const std::string name = rules.lastName(path);
    const TransferReports reports(with_);
    if (isFolder(path))
        return reports.aboutFile(name, message::folderPassedOver);
    if (isInPCFolder(path))
        return with_.results.note(name, ItemEnd::Skipped,
                                  with_.messages.getMessage(message::alreadyInFolder));
    // Half a file would arrive as a whole one, a mark would have another file put away.
    if (isBeingFetched(rules.parent(path), name) || isBeingFetched(with_.state.PCPath, name))
        return reports.aboutFile(name, message::fetchNotFinished);
    if (!mayTakePlace(name))
        return;
    // A fetch may have begun while the question was open.
    if (isBeingFetched(with_.state.PCPath, name))
        return reports.aboutFile(name, message::fetchNotFinished);
    const auto content = readSettledFile(path);
    const Outcome copied = content ? replaceFile(rules.join(with_.state.PCPath, name), *content)
                                   : Outcome(Failure{content.reason()});
    if (copied) {
        outcome_.pcTouched = true;
        brought_.insert(comparedName(name));
        return with_.results.note(name, ItemEnd::Done);
    }
    outcome_.succeeded = false;
    reports.aboutFile(name, message::notCopied, copied.reason());
}

bool CopyIntoFolder::isInPCFolder(const std::string& path) const {
    const auto compared = [](const std::string& folder) {
        return comparedName(PathRules().resolved(folder));
    };
    return compared(PathRules().parent(path)) == compared(with_.state.PCPath);
}

/// A folder of that name is left to the failure of the copy, which says so. All was not meant for
/// what the command itself has brought from another folder.
bool CopyIntoFolder::mayTakePlace(const std::string& name) {
    const std::string there = PathRules().join(with_.state.PCPath, name);
    const bool replacesOwn = brought_.contains(comparedName(name));
    if ((overwriteAll_ && !replacesOwn) || !anythingExists(there) || isFolder(there))
        return true;
    const Overwrite overwrite{.name = name, .storedAs = {}, .pcFile = there, .isOnPC = true};
    const Answer answer = askOverwrite(with_.talk, with_.messages, title_, overwrite);
    overwriteAll_ = overwriteAll_ || answer == Answer::All;
    outcome_.cancelled = answer == Answer::Cancel;
    if (answer == Answer::No)
        with_.results.note(name, ItemEnd::Skipped, with_.messages.getMessage(message::resultKept));
    return answer == Answer::Yes || answer == Answer::All;
}

} // namespace vantrel
