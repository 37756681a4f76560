#include "link/Snappy.h"

#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/DirectoryReader.h"
#include "link/FetchFiles.h"
#include "link/InterruptedFetches.h"
#include "link/JobBatch.h"
#include "link/JobFetch.h"
#include "link/JobLists.h"
#include "link/JobNameSet.h"
#include "link/JobSend.h"
#include "link/LinkConnection.h"
#include "link/LinkTest.h"
#include "link/MachineUse.h"
#include "link/OverwriteQuestion.h"
#include "link/ProgressPanel.h"
#include "link/SentFile.h"
#include "link/SessionProgress.h"
#include "link/VariableList.h"
#include "link/VariableTransfer.h"
#include "platform/Files.h"

#include <utility>

namespace vantrel {

/// The session's members, each with one responsibility, wired up.
struct Snappy::Parts {
    using FolderUse = LinkConnection::FolderUse;

    Parts(SessionServices given, const SessionProperties& properties)
        : services(std::move(given)), link(services, properties, error),
          progress(properties, services.messages, services.progress),
          question(properties, services.messages, services.talk), reader(link, progress, error),
          deletion(link, progress), tools{properties,   link,           progress, error,
                                          question,     directoryNames, inTheWay, services.messages,
                                          services.talk},
          files(services.files ? *services.files : systemFiles),
          interrupted(files, services.messages, services.talk),
          sending(tools, deletion, interrupted), fetching(tools, files, interrupted),
          jobs({properties, error, services.messages, services.talk}), variable(link, error),
          variables(properties, error) {}

    /// Runs one public operation; whichever way it is left, the progress dialog is hidden. One that
    /// is begun while another runs, by an event that this one lets in, is refused: both would work
    /// on the same link, record and directory.
    template <typename Work>
    bool operate(const Work& work, FolderUse use = FolderUse::Files);
    /// Reads the controller's names, and remembers what a reading that succeeded has shown. The
    /// progress is shown meanwhile, and a press of its Cancel noted.
    bool readNames(std::vector<std::string>& names);
    /// The same for the questions of a send. False, too, when Cancel was pressed: nothing is sent
    /// then.
    bool readDirectory();
    /// Works through `entries`; `transfer` does one of them.
    bool transferList(const SessionProperties& properties, const std::vector<std::string>& entries,
                      JobBatch::Transfer transfer, JobBatch::Conclude conclude = {});
    bool sendSingle(const std::string& file, const ReplaceConsent& consent);
    /// Hides the progress and turns the outcome of a single transfer into record and result.
    bool concludeSingle(TransferOutcome outcome);

    SessionServices services;
    SessionErrorRecord error;
    LinkConnection link;
    SessionProgress progress;
    OverwriteQuestion question;
    DirectoryReader reader;
    std::vector<std::string> directory; ///< the controller's, as last read for a transfer
    DirectoryReading reading;           ///< the last one that succeeded
    SentFile sent;
    JobNameSet directoryNames;
    std::vector<std::string> inTheWay; ///< of the file transferred last
    JobDeletion deletion;
    TransferTools tools;
    FetchFiles systemFiles;
    FetchFiles& files;
    InterruptedFetches interrupted;
    JobSend sending;
    JobFetch fetching;
    LocalJobList localJobs;
    JobListStore jobs;
    VariableTransfer variable;
    VariableList variables;
    bool quit = false;
    bool testing = false; ///< a link is tried
    // Of the operation that runs or ran last:
    bool operatorTold = false;
    bool entryTried = false;
    std::vector<EntryEnd> ends;
};

namespace {

/// The time of one operation.
class Operation {
  public:
    Operation(LinkConnection& link, SessionProgress& progress, LinkConnection::FolderUse use,
              MachineUse* machines)
        : command_(machines), link_(link), progress_(progress) {
        link_.begin(use);
        progress_.begin();
    }
    ~Operation() {
        progress_.end();
        link_.end();
    }
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

  private:
    MachineUse::Command command_;
    LinkConnection& link_;
    SessionProgress& progress_;
};

} // namespace

Snappy::Snappy(const SessionServices& services) : parts_(std::make_unique<Parts>(services, *this)) {
    path = currentFolder();
}

Snappy::~Snappy() = default;

std::int32_t Snappy::JobListCount() const {
    return parts_->jobs.entries().count();
}

std::int32_t Snappy::VarListCount() const {
    return parts_->variables.entries().count();
}

std::int16_t Snappy::ErrorCode() const {
    return parts_->error.ErrorCode;
}

const std::string& Snappy::ErrorFunction() const {
    return parts_->error.ErrorFunction;
}

std::int32_t Snappy::ErrorIndex() const {
    return parts_->error.ErrorIndex;
}

std::string Snappy::GetCTRLError(std::int32_t code) const {
    return parts_->services.messages.controllerErrorText(code);
}

std::string Snappy::JobList(std::int32_t index) const {
    return parts_->jobs.entries().at(index);
}

std::string Snappy::VarList(std::int32_t index) const {
    return parts_->variables.entries().at(index);
}

bool Snappy::wasCancelled() const {
    return ErrorFunction().empty() && ErrorCode() == session_code::cancelled;
}

bool Snappy::operatorIsTold() const {
    return parts_->operatorTold || parts_->link.endedByUnsetAddress();
}

void Snappy::noteOperatorTold() {
    parts_->operatorTold = true;
}

std::string Snappy::errorText() const {
    const MessageTable& messages = parts_->services.messages;
    // What the operator was told of in words is no answer of a function.
    return recordedText(messages, parts_->error, parts_->error.isReturned && !parts_->operatorTold);
}

std::int32_t Snappy::failedIndex() const {
    const bool isOfThisFailure = parts_->error.hasIndex || parts_->entryTried;
    return isOfThisFailure ? parts_->error.ErrorIndex : 0;
}

bool Snappy::triedAnEntry() const {
    return parts_->entryTried;
}

const std::string& Snappy::systemReason() const {
    return parts_->error.systemReason;
}

const std::vector<EntryEnd>& Snappy::entryEnds() const {
    return parts_->ends;
}

const std::string& Snappy::unusableMark() const {
    return parts_->error.mark;
}

const LocalJobList& Snappy::readLocalJobs() {
    parts_->localJobs.read(path);
    return parts_->localJobs;
}

const std::vector<std::string>& Snappy::jobsInTheWay() const {
    return parts_->inTheWay;
}

const std::string& Snappy::storedAs() const {
    return parts_->sending.storedAs();
}

const std::vector<std::string>& Snappy::unreplacedJobs() const {
    return parts_->sending.unreplaced();
}

const SentFile& Snappy::lastSent() const {
    return parts_->sent;
}

const DirectoryReading& Snappy::lastReading() const {
    return parts_->reading;
}

bool Snappy::settleInterruptedFetches(const std::string& folder,
                                      const std::vector<std::string>& names) {
    return parts_->interrupted.settle(folder, names);
}

template <typename Work>
bool Snappy::Parts::operate(const Work& work, FolderUse use) {
    if (link.hasBegun() || testing) {
        error.set(session_code::operationRunning, "");
        return false;
    }
    const Operation operation(link, progress, use, services.use);
    sending.begin();
    operatorTold = false;
    entryTried = false;
    ends.clear();
    return work();
}

// Jobs.

bool Snappy::Parts::readNames(std::vector<std::string>& names) {
    const bool isSerial = services.TransMode == TransferMode::Bsc;
    const SessionProperties& with = tools.properties;
    const std::string robot = isSerial ? "COM" + std::to_string(with.port) : with.IPaddress;
    progress.open(progress.readingDirectory(), true, false);
    const bool isRead = reader.read(names);
    if (isRead)
        reading = {reading.number + 1, names, robot};
    progress.hide();
    return isRead;
}

bool Snappy::Parts::readDirectory() {
    const bool isRead = readNames(directory);
    const bool cancelled = progress.isCancelledInView();
    directoryNames.assign(directory);
    if (isRead && cancelled)
        error.set(session_code::cancelled, "", 0);
    return isRead && !cancelled;
}

bool Snappy::Parts::sendSingle(const std::string& file, const ReplaceConsent& consent) {
    return operate([&] {
        inTheWay.clear();
        // A name or file that will be refused opens no link, not even the directory's.
        if (!link.libraryFileName(file, "BscDownLoad", 0) || !sending.isWhole(file, 0) ||
            !readDirectory())
            return false;
        progress.open(progress.transferring(file), false, true);
        entryTried = true;
        return concludeSingle(sending.send(file, 0, consent, &sent));
    });
}

bool Snappy::Parts::concludeSingle(TransferOutcome outcome) {
    progress.hide();
    if (goesOn(outcome) && progress.isCancelled())
        outcome = TransferOutcome::Cancelled;
    switch (outcome) {
    case TransferOutcome::Refused:
        error.set(session_code::overwriteRefused, "");
        break;
    case TransferOutcome::Cancelled:
        error.set(session_code::cancelled, "");
        break;
    case TransferOutcome::DoneAll:
        error.set(session_code::overwriteAll, "");
        break;
    case TransferOutcome::Done:
    case TransferOutcome::Failed:
    case TransferOutcome::Stopped:
        break;
    }
    return goesOn(outcome);
}

bool Snappy::Parts::transferList(const SessionProperties& properties,
                                 const std::vector<std::string>& entries,
                                 JobBatch::Transfer transfer, JobBatch::Conclude conclude) {
    JobBatch batch(
        {properties, link, progress, error, localJobs, services.messages, services.talk, ends},
        std::move(transfer), std::move(conclude));
    return batch.run(entries);
}

bool Snappy::ReadDirectory(std::vector<std::string>& list) {
    list.clear();
    return parts_->operate([&] { return parts_->readNames(list); }, Parts::FolderUse::None);
}

bool Snappy::JobDownLoad(const std::string& file, bool overwriteAll) {
    return parts_->sendSingle(file, {.toAll = overwriteAll});
}

bool Snappy::replaceJobs(const std::string& file, const std::vector<std::string>& asked,
                         const std::string& askedAs) {
    return parts_->sendSingle(file, {.toThese = &asked, .storedAs = askedAs});
}

bool Snappy::JobDelete(const std::string& name) {
    return parts_->operate(
        [&] {
            parts_->progress.prepare(parts_->progress.deleting(name), false, true);
            return parts_->deletion.remove(name);
        },
        Parts::FolderUse::None);
}

bool Snappy::JobUpLoad(const std::string& name, bool overwriteAll) {
    return parts_->operate([&] {
        parts_->inTheWay.clear();
        if (!parts_->link.libraryFileName(name, "BscUpLoad", 0) || !parts_->fetching.listFolder())
            return false;
        parts_->progress.open(parts_->progress.transferring(name), false, true);
        parts_->entryTried = true;
        return parts_->concludeSingle(parts_->fetching.fetch(name, 0, overwriteAll));
    });
}

bool Snappy::JobListDownLoad() {
    return parts_->operate([&] {
        // A copy: the list is open to every caller, and events run from here on.
        const std::vector<std::string> entries = parts_->jobs.entries().all();
        parts_->localJobs.read(path);
        if (!parts_->readDirectory())
            return false;
        return parts_->transferList(
            *this, entries,
            [this](const std::string& entry, std::int32_t index, bool overwriteAll) {
                parts_->entryTried = true;
                return parts_->sending.send(entry, index, {.toAll = overwriteAll});
            });
    });
}

bool Snappy::JobListUpLoad() {
    return parts_->operate([&] {
        // A copy: the list is open to every caller, and events run from here on.
        const std::vector<std::string> entries = parts_->jobs.entries().all();
        parts_->localJobs.read(path);
        if (!parts_->fetching.listFolder())
            return false;
        parts_->fetching.beginList(entries, parts_->localJobs);
        return parts_->transferList(
            *this, entries,
            [this](const std::string& entry, std::int32_t index, bool overwriteAll) {
                parts_->entryTried = true;
                return parts_->fetching.fetchOfList(entry, index, overwriteAll);
            },
            [this](TransferOutcome outcome) { return parts_->fetching.endList(outcome); });
    });
}

void Snappy::AddJobList(const std::string& entry) {
    parts_->jobs.entries().add(entry);
}

void Snappy::JobListClear() {
    parts_->jobs.entries().clear();
}

void Snappy::RemoveJobList(std::int32_t index) {
    parts_->jobs.entries().remove(index);
}

bool Snappy::SetJobListFile(const std::string& file, bool unchecked) {
    return parts_->operate([&] {
        parts_->localJobs.read(path);
        return parts_->jobs.load(file, unchecked);
    });
}

// Variables.

void Snappy::SetVarListFile(const std::string& file) {
    parts_->variables.setFile(file);
}

bool Snappy::ReadVarListFile() {
    return parts_->operate([&] { return parts_->variables.read(); });
}

void Snappy::VarListClear() {
    parts_->variables.entries().clear();
}

void Snappy::AddVarList(const std::string& entry) {
    parts_->variables.entries().add(entry);
}

void Snappy::RemoveVarList(std::int32_t index) {
    parts_->variables.entries().remove(index);
}

bool Snappy::VarDownLoad(const std::string& entry) {
    return parts_->operate([&] {
        parts_->progress.open(parts_->progress.transferring(entry), false, false);
        return parts_->variable.write(entry);
    });
}

bool Snappy::VarUpLoad(std::string& entry) {
    return parts_->operate([&] {
        parts_->progress.open(parts_->progress.transferring(entry), false, false);
        return parts_->variable.read(entry);
    });
}

bool Snappy::VarListDownLoad() {
    return parts_->operate([&] {
        parts_->entryTried = true;
        VariableBatch batch(parts_->link, parts_->progress, parts_->error);
        return batch.run(parts_->variables.entries(),
                         [this](std::string& entry) { return parts_->variable.write(entry); });
    });
}

bool Snappy::VarListUpLoad() {
    return parts_->operate([&] {
        parts_->entryTried = true;
        VariableBatch batch(parts_->link, parts_->progress, parts_->error);
        return batch.run(parts_->variables.entries(),
                         [this](std::string& entry) { return parts_->variable.read(entry); });
    });
}

bool Snappy::WriteVarListFile(const std::string& file) {
    return parts_->operate([&] { return parts_->variables.write(file); });
}

// The session itself.

void Snappy::testLink(const LinkTarget& target,
                      const std::function<void(const LinkTestStep&)>& ended) {
    if (parts_->link.hasBegun() || parts_->testing)
        return ended(LinkTest::refused(parts_->services.messages));
    parts_->testing = true;
    LinkTest(parts_->services, *this, target, parts_->progress).run(ended);
    parts_->testing = false;
}

void Snappy::SetLangageMode(std::int16_t selector) {
    static constexpr const char* names[] = {"japanese", "English"};
    if (selector == 0 || selector == 1)
        static_cast<void>(
            parts_->services.languages.readInto(names[selector], parts_->services.messages));
}

void Snappy::Quit() {
    if (std::exchange(parts_->quit, true))
        return;
    parts_->services.progress.unload();
    if (parts_->services.unloadWindows)
        parts_->services.unloadWindows();
}

bool Snappy::SetTansMode(std::int16_t mode) {
    parts_->services.TransMode = mode == 1 ? TransferMode::HispeedLink : TransferMode::Bsc;
    if (parts_->services.modeChanged)
        parts_->services.modeChanged();
    return mode == 0 || mode == 1;
}

} // namespace vantrel
