#include "console/ListCommands.h"

#include "app/lists/ListFileDraft.h"
#include "app/lists/SessionLists.h"
#include "app/start/Engine.h"
#include "console/ConsoleMessages.h"
#include "console/Replacement.h"
#include "files/TransferReports.h"
#include "lang/SystemReasons.h"
#include "link/JobLists.h"
#include "link/ShownText.h"
#include "link/VariableEntry.h"

#include <cstddef>
#include <utility>

namespace vantrel {
namespace {

using Task = Request::Task;

/// What runs for a task.
struct ListCommand {
    Task task;
    CommandKind kind;
    std::string_view mode; ///< of the list-file dialog
    void (ListTransferCommands::*run)();
};

constexpr ListCommand listCommands[] = {
    {Task::GetJobs, CommandKind::SaveJobs, list_file_mode::saveJobs,
     &ListTransferCommands::saveJobs},
    {Task::PutJobs, CommandKind::LoadJobs, list_file_mode::loadJobs,
     &ListTransferCommands::loadJobs},
    {Task::GetVariables, CommandKind::SaveVariables, list_file_mode::saveVariables,
     &ListTransferCommands::saveVariables},
    {Task::PutVariables, CommandKind::LoadVariables, list_file_mode::loadVariables,
     &ListTransferCommands::loadVariables},
};

const ListCommand& commandFor(Task task) {
    std::size_t row = 0;
    while (row + 1 < std::size(listCommands) && listCommands[row].task != task)
        ++row;
    return listCommands[row];
}

bool isForJobs(CommandKind kind) {
    return kind == CommandKind::SaveJobs || kind == CommandKind::LoadJobs;
}

} // namespace

ListCommands::ListCommands(Desk& desk, const Target& target)
    : desk_(desk), machine_(desk, target), kind_(commandFor(desk.request.task).kind),
      items_(desk, machine_, kind_), commands_(machine_.services, *this) {}

void ListCommands::run() {
    if (desk_.world.isInterrupted())
        return items_.addAll(desk_.request.names, ItemEnd::NotTried);
    if (!machine_.readFolder(!desk_.request.dryRun))
        return items_.addAll(desk_.request.names, ItemEnd::Failed, text(message::folderNotOpened));
    if (!readFile())
        return;
    if (isForJobs(kind_))
        return runJobs();
    desk_.request.dryRun ? rehearseVariables() : perform();
}

/// What the controller has decides which data files may be sent.
void ListCommands::runJobs() {
    if (kind_ == CommandKind::LoadJobs && !items_.readController(entries_))
        return;
    Replacement replacement(desk_, kind_);
    entries_ = replacement.withoutKept(entries_, items_);
    if (!desk_.request.dryRun)
        return perform();
    rehearseJobs();
    replacement.rehearse(machine_, entries_, items_);
}

/// The list file's entries, as the window's dialog has the session read them.
bool ListCommands::readFile() {
    Snappy& session = desk_.engine.session;
    ListFileDraft draft(desk_.engine.state, session, desk_.engine.boxes, desk_.engine.messages,
                        commandFor(desk_.request.task).mode);
    draft.setName(desk_.request.names.front());
    const std::string file = draft.completedName();
    std::vector<std::string> all;
    if (kind_ == CommandKind::LoadJobs && session.SetJobListFile(file, true))
        all = jobNames(session);
    draft.confirm();
    if (draft.result() != list_file_result::listRead) {
        const std::string& reason = session.systemReason();
        items_.addAll({file}, ItemEnd::Failed,
                      reason.empty() ? session.errorText()
                                     : reasonInLanguage(desk_.engine.messages, reason));
        return false;
    }
    entries_ = isForJobs(kind_) ? jobNames(session) : variablesOf(session);
    if (all.empty() && entries_.empty())
        items_.addAll({file}, ItemEnd::Failed, text(message::listFileEmpty) + bracketed(file));
    return leaveOutMissing(all) && !entries_.empty();
}

bool ListCommands::leaveOutMissing(const std::vector<std::string>& all) {
    std::vector<std::string> missing;
    std::size_t found = 0;
    for (const std::string& name : all)
        if (found < entries_.size() && entries_[found] == name)
            ++found;
        else
            missing.push_back(name);
    items_.addAll(missing, ItemEnd::Failed, text(message::consoleNoMatch));
    // Jobs call each other: half a list is sent only to whoever wants it so.
    if (missing.empty() || desk_.request.keepGoing)
        return true;
    items_.addAll(entries_, ItemEnd::NotTried);
    return false;
}

/// What the window's command asks for: the file has been read, so it gets what is left of it.
bool ListCommands::readList(std::string_view) {
    Snappy& session = desk_.engine.session;
    if (isForJobs(kind_)) {
        session.JobListClear();
        for (const std::string& name : entries_)
            session.AddJobList(name);
    } else if (kind_ == CommandKind::LoadVariables) {
        session.VarListClear();
        for (const std::string& entry : entries_)
            session.AddVarList(entry);
    }
    return true;
}

void ListCommands::perform() {
    while (!entries_.empty()) {
        machine_.results = ResultLog();
        (commands_.*commandFor(desk_.request.task).run)();
        if (!machine_.results.last())
            return items_.addAll(entries_, ItemEnd::NotTried, text(message::consoleOtherFolder));
        const CommandResult& result = *machine_.results.last();
        entries_ =
            items_.addResult(result, result.openRows().empty() ? exit_code::nothingDone
                                                               : causeOf(desk_.engine.session));
    }
}

/// Those that the session passes over.
void ListCommands::rehearseJobs() {
    const LocalJobList& local = desk_.engine.session.readLocalJobs();
    std::vector<std::string> left;
    for (const std::string& name : std::exchange(entries_, {}))
        if (local.contains(name))
            items_.addAll({name}, ItemEnd::Skipped, text(message::localJobPassedOver));
        else
            entries_.push_back(name);
}

/// Reading changes nothing on either side as long as the list is not written.
void ListCommands::rehearseVariables() {
    const MessageTable& messages = desk_.engine.messages;
    if (kind_ == CommandKind::LoadVariables) {
        for (const std::string& entry : entries_) {
            const bool isEntry = VariableEntry::parse(entry).has_value();
            items_.addAll({entry}, isEntry ? ItemEnd::Done : ItemEnd::Failed,
                          isEntry ? std::string()
                                  : messages.errorText(session_code::entryRejected));
        }
        return;
    }
    machine_.results.begin(kind_, {}, desk_.engine.state.PCPath, entries_);
    noteReceived(desk_.engine.session.VarListUpLoad(), entries_);
    machine_.results.end(false);
    const CommandResult& result = *machine_.results.last();
    items_.addResult(result, result.openRows().empty() ? exit_code::nothingDone
                                                       : causeOf(desk_.engine.session));
}

void ListCommands::noteReceived(bool isRead, const std::vector<std::string>& before) {
    const Snappy& session = desk_.engine.session;
    ResultLog& results = machine_.results;
    if (isRead) {
        const bool isKept = desk_.request.overwrite == OverwritePolicy::Never &&
                            losesValues(before, variablesOf(session));
        for (const std::string& entry : before)
            results.note(entry, isKept ? ItemEnd::Skipped : ItemEnd::Done,
                         isKept ? text(message::resultKept) : std::string());
    } else if (!operatorKnows(session) && session.triedAnEntry()) {
        results.note(session.VarList(session.failedIndex()), ItemEnd::Failed,
                     functionAndReason(session));
    }
}

std::string ListCommands::text(std::int32_t number) const {
    return desk_.engine.messages.getMessage(number);
}

} // namespace vantrel
