#include "files/DeleteCommand.h"

#include "base/PathRules.h"
#include "files/AmbiguousNames.h"
#include "files/CommandResult.h"
#include "files/ControllerPlace.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "link/Snappy.h"
#include "platform/Files.h"

namespace vantrel {

DeleteCommand::DeleteCommand(const TransferServices& services, ActiveSide side)
    : with_(services), side_(side), title_(with_.messages.getMessage(message::title)),
      progress_(with_, title_, with_.messages.resourceMessage(message::resource::deleting),
                side == ActiveSide::PC ? std::string() : towardController(with_.state)) {}

CommandOutcome DeleteCommand::run(const std::vector<SelectedItem>& items) {
    return side_ == ActiveSide::PC ? onPC(items) : onController(items);
}

/// The session works silently, since its progress would take the place of this command's, whose
/// Cancel button has to stay for the files that follow.
CommandOutcome DeleteCommand::onController(const std::vector<SelectedItem>& items) {
    with_.session.DisplayMonitor = false;
    each(withoutAmbiguousNames(with_, items), message::askDeleteOnController,
         [this](const std::string& name) { return deleteOnController(name); });
    return outcome_;
}

CommandOutcome DeleteCommand::onPC(const std::vector<SelectedItem>& items) {
    each(items, message::askDeleteOnPC, [this](const std::string& name) {
        deleteOnPC(name);
        return true;
    });
    return outcome_;
}

void DeleteCommand::each(const std::vector<SelectedItem>& items, std::int32_t question,
                         const Deletion& deletion) {
    bool goesOn = true;
    for (std::size_t item = 0; item < items.size() && goesOn && !outcome_.cancelled; ++item) {
        const std::string& name = items[item].name;
        if (items[item].isFolder)
            TransferReports(with_).aboutFile(name, message::folderPassedOver);
        else if (isWanted(name, question)) {
            outcome_.cancelled = !progress_.next(name, item, items.size());
            goesOn = !outcome_.cancelled && deletion(name);
        }
    }
    outcome_.succeeded = outcome_.succeeded && goesOn && !outcome_.cancelled;
}

bool DeleteCommand::isWanted(const std::string& name, std::int32_t question) {
    if (deleteAll_)
        return true;
    CheckedChoice wasteBin{with_.messages.getMessage(message::toWasteBin),
                           with_.state.DeletesToWasteBin};
    const bool isOffered = side_ == ActiveSide::PC && with_.moveToWasteBin != nullptr;
    const Answer answer =
        with_.talk.ask(title_, questionText(name, question), {}, isOffered ? &wasteBin : nullptr);
    if (isOffered && answer != Answer::Cancel)
        with_.state.DeletesToWasteBin = wasteBin.isChecked;
    deleteAll_ = answer == Answer::All;
    outcome_.cancelled = answer == Answer::Cancel;
    if (answer == Answer::No)
        with_.results.note(name, ItemEnd::Skipped, with_.messages.getMessage(message::resultKept));
    return answer == Answer::Yes || answer == Answer::All;
}

std::string DeleteCommand::questionText(const std::string& name, std::int32_t question) const {
    const std::string shown = shownText(name);
    const std::string text =
        with_.messages.getMessageWithInsertion(question, shown, controllerName(with_.state));
    // A language file that was edited for an earlier version asks without the name.
    const bool isNamed = with_.messages.getMessage(question).find('%') != std::string::npos;
    return isNamed ? text : "[" + shown + "]" + text;
}

bool DeleteCommand::deleteOnController(const std::string& name) {
    outcome_.controllerTouched = true;
    if (with_.session.JobDelete(name)) {
        outcome_.goneFromController.push_back(name);
        with_.results.note(name, ItemEnd::Done);
        return true;
    }
    outcome_.succeeded = false;
    if (with_.session.operatorIsTold()) {
        outcome_.controllerTouched = false;
        return false;
    }
    TransferReports(with_).deletionFailed(name);
    return true;
}

void DeleteCommand::deleteOnPC(const std::string& name) {
    outcome_.pcTouched = true;
    const std::string path = PathRules().join(with_.state.PCPath, name);
    const bool isKept = with_.state.DeletesToWasteBin && with_.moveToWasteBin != nullptr;
    const Outcome removed = isKept ? (*with_.moveToWasteBin)(path) : removeFile(path);
    if (removed)
        return with_.results.note(name, ItemEnd::Done);
    outcome_.succeeded = false;
    TransferReports(with_).aboutFile(name, message::notDeletedFromPC, removed.reason());
}

} // namespace vantrel
