#include "files/MoveCommand.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/AmbiguousNames.h"
#include "files/CommandResult.h"
#include "files/ControllerPlace.h"
#include "files/SentSources.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/JobFile.h"
#include "link/JobLists.h"
#include "link/OperatorTalk.h"
#include "link/OverwriteQuestion.h"
#include "link/Snappy.h"

#include <algorithm>

namespace vantrel {
namespace {

bool holds(const std::vector<std::string>& jobs, const std::string& job) {
    return std::ranges::find(jobs, job) != jobs.end();
}

} // namespace

MoveCommand::MoveCommand(const TransferServices& services)
    : MoveCommand(services, Direction::Receive, nullptr) {}

MoveCommand::MoveCommand(const TransferServices& services, SentSources& sent)
    : MoveCommand(services, Direction::Send, &sent) {}

MoveCommand::MoveCommand(const TransferServices& services, Direction direction, SentSources* sent)
    : with_(services), direction_(direction), sent_(sent),
      title_(with_.messages.getMessage(message::transferTitle)),
      progress_(with_, title_, with_.messages.resourceMessage(message::resource::transferring),
                direction == Direction::Send ? towardController(with_.state)
                                             : fromController(with_.state)) {
    with_.session.path = PathRules().withSeparator(with_.state.PCPath);
    with_.session.DisplayMonitor = false;
}

CommandOutcome MoveCommand::run(const std::vector<SelectedItem>& items) {
    const auto names = movable(items);
    progress_.measure(names, direction_ == Direction::Send, [this](std::size_t item) {
        return item < transferred_.size() && transferred_[item];
    });
    for (std::size_t item = 0; item < names.size(); ++item)
        if (!progress_.next(names[item], item, names.size()) || !move(names[item])) {
            outcome_.succeeded = false;
            outcome_.cancelled = outcome_.cancelled || progress_.isCancelled();
            break;
        }
    tellUnreplaced();
    return outcome_;
}

/// Jobs that belong to the PC alone are passed over by the very list of the session's transfers. A
/// receive deletes on the controller, so it needs names that stand for one job there.
std::vector<std::string> MoveCommand::movable(const std::vector<SelectedItem>& items) const {
    const LocalJobList& local = with_.session.readLocalJobs();
    const TransferPermission permission(with_, direction_);
    auto names = permission.permitted(
        direction_ == Direction::Receive ? withoutAmbiguousNames(with_, items) : items);
    std::erase_if(names, [&](const std::string& name) {
        if (!local.contains(name))
            return false;
        TransferReports(with_).aboutFile(name, message::localJobPassedOver);
        return true;
    });
    return names;
}

bool MoveCommand::move(const std::string& name) {
    transferred_.push_back(false);
    if (goesOverOwn(name)) {
        TransferReports(with_).aboutFile(name, message::nameIsAmbiguous);
        return true;
    }
    const Arrival arrival = transfer(name);
    if (arrival != Arrival::Arrived)
        return arrival == Arrival::NotArrived;
    return direction_ == Direction::Send || removeFromController(name);
}

MoveCommand::Arrival MoveCommand::transfer(const std::string& name) {
    // All was not meant for what the command itself has brought: its source is gone already.
    const bool replacesOwn = hasArrived(name) || hasArrived(arrivalName(name));
    const bool overwrite = overwriteAll_ && !replacesOwn;
    Arrival arrival = Arrival::Arrived;
    if (!callSession(name, overwrite))
        arrival = overwrite || !existsAlready() ? failed(name) : askAndTransfer(name);
    if (arrival == Arrival::Arrived) {
        transferred_.back() = true;
        if (direction_ == Direction::Send)
            with_.results.note(name, ItemEnd::Done);
        arrived_.insert(direction_ == Direction::Send ? with_.session.lastSent().arrivesAs : name);
    }
    return arrival;
}

// The controller takes a data file without a question, over the one whose PC file goes.
bool MoveCommand::goesOverOwn(const std::string& name) const {
    return direction_ == Direction::Send && !isJobFileName(name) && hasArrived(name);
}

MoveCommand::Arrival MoveCommand::askAndTransfer(const std::string& name, Agreed agreed) {
    // Leave to replace a job is none to delete it for a file that is another one by now.
    if (agreed.storedAs != with_.session.storedAs())
        std::erase(agreed.jobs, name);
    agreed.storedAs = with_.session.storedAs();
    std::vector<std::string> unasked = with_.session.jobsInTheWay();
    std::erase_if(unasked, [&agreed](const std::string& job) { return holds(agreed.jobs, job); });
    const Arrival allowed = askFor(name, unasked);
    if (allowed != Arrival::Arrived)
        return allowed;
    agreed.jobs.insert(agreed.jobs.end(), unasked.begin(), unasked.end());
    return transferOver(name, agreed);
}

MoveCommand::Arrival MoveCommand::askFor(const std::string& file,
                                         const std::vector<std::string>& jobs) {
    for (const std::string& job : jobs) {
        if (overwriteAll_ && !hasArrived(job))
            continue;
        switch (askOverwrite(file, job)) {
        case Answer::No:
            with_.results.note(file, ItemEnd::Skipped,
                               with_.messages.getMessage(message::resultKept));
            return Arrival::NotArrived;
        case Answer::Cancel:
            outcome_.cancelled = true;
            return Arrival::EndOfCommand;
        case Answer::All:
            overwriteAll_ = true;
            break;
        case Answer::Yes:
            break;
        }
    }
    return Arrival::Arrived;
}

/// A controller keeps a job by the name of its "//NAME" line.
std::string MoveCommand::arrivalName(const std::string& name) const {
    if (direction_ == Direction::Receive || !isJobFileName(name))
        return name;
    const auto job = JobFile::read(PathRules().join(with_.state.PCPath, name));
    return job && !job->name().text.empty() ? jobFileName(job->name().text) : name;
}

bool MoveCommand::hasArrived(const std::string& name) const {
    return direction_ == Direction::Send && isJobFileName(name) ? !arrived_.jobEntry(name).empty()
                                                                : arrived_.hasFile(name);
}

/// "Exists already" is a failure now: asking for the same again would not end. Only what has come
/// into the way of a send while the questions were open, by a file that was saved under another
/// name line or a job that came to the controller, is asked for as well.
MoveCommand::Arrival MoveCommand::transferOver(const std::string& name, const Agreed& agreed) {
    if (progress_.isCancelled())
        return Arrival::EndOfCommand;
    if (direction_ == Direction::Receive || overwriteAll_)
        return callSession(name, true) ? Arrival::Arrived : failed(name);
    const bool sent = with_.session.replaceJobs(name, agreed.jobs, agreed.storedAs);
    noteTouched();
    noteEffects(name, sent);
    if (sent)
        return Arrival::Arrived;
    return somethingElseIsInTheWay() ? askAndTransfer(name, agreed) : failed(name);
}

bool MoveCommand::somethingElseIsInTheWay() const {
    return !with_.session.operatorIsTold() && with_.session.ErrorFunction().empty() &&
           with_.session.ErrorCode() == session_code::fileChanged;
}

bool MoveCommand::callSession(const std::string& name, bool overwrite) {
    const bool isSend = direction_ == Direction::Send;
    const bool isDone = isSend ? with_.session.JobDownLoad(name, overwrite)
                               : with_.session.JobUpLoad(name, overwrite);
    noteTouched();
    if (isSend)
        noteEffects(name, isDone);
    return isDone;
}

/// Every send has begun with a reading of the directory, which shows what went before it.
void MoveCommand::noteEffects(const std::string& name, bool sent) {
    const auto& unreplaced = with_.session.unreplacedJobs();
    auto& gone = outcome_.goneFromController;
    gone.insert(gone.end(), unreplaced.begin(), unreplaced.end());
    sent_->removeArrived();
    if (!sent)
        return;
    unreplaced_.insert(unreplaced_.end(), unreplaced.begin(), unreplaced.end());
    const auto isBack = [&](const std::string& job) {
        return isSameJob(job, with_.session.lastSent().arrivesAs);
    };
    std::erase_if(gone, isBack);
    std::erase_if(unreplaced_, isBack);
    sent_->add(name);
}

void MoveCommand::tellUnreplaced() const {
    if (!unreplaced_.empty())
        TransferReports(with_).aboutFiles(message::notReplaced, unreplaced_);
}

void MoveCommand::noteTouched() {
    if (wasCancelledReading(with_.session))
        return;
    outcome_.pcTouched = true;
    outcome_.controllerTouched = true;
}

/// The silent session answers its own overwrite question with Cancel.
bool MoveCommand::existsAlready() const {
    return !with_.session.operatorIsTold() && with_.session.wasCancelled();
}

Answer MoveCommand::askOverwrite(const std::string& file, const std::string& job) const {
    const Overwrite overwrite{.name = job,
                              .storedAs = job == file ? with_.session.storedAs() : std::string(),
                              .pcFile = PathRules().join(with_.state.PCPath, file),
                              .isOnPC = direction_ == Direction::Receive};
    return vantrel::askOverwrite(with_.talk, with_.messages, title_, overwrite);
}

/// An unset address concerns every file: the session has told the operator, and the command ends
/// without another attempt.
MoveCommand::Arrival MoveCommand::failed(const std::string& name) {
    outcome_.succeeded = false;
    if (with_.session.operatorIsTold()) {
        outcome_.controllerTouched = false;
        return Arrival::EndOfCommand;
    }
    // Pressed while the directory was read.
    if (progress_.isCancelled() && existsAlready())
        return Arrival::EndOfCommand;
    TransferReports(with_).transferFailed(name);
    return Arrival::NotArrived;
}

/// A press of Cancel keeps the original: it stops before the next call, and this is one.
bool MoveCommand::removeFromController(const std::string& name) {
    const auto noteKept = [&] {
        with_.results.note(name, ItemEnd::Failed,
                           with_.messages.getMessage(message::originalNotDeleted));
        return false;
    };
    if (progress_.isCancelled())
        return noteKept();
    if (with_.session.JobDelete(name)) {
        outcome_.goneFromController.push_back(name);
        with_.results.note(name, ItemEnd::Done);
        return true;
    }
    outcome_.succeeded = false;
    if (with_.session.operatorIsTold())
        return noteKept();
    TransferReports(with_).originalNotDeleted(name);
    return true;
}

} // namespace vantrel
