#pragma once

#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"
#include "link/TransferTools.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vantrel {

class LocalJobList;
struct DirectoryReading;
struct LinkTarget;
struct LinkTestStep;
struct SentFile;

/// The one controller session: every operation on a controller passes through it. Each operation
/// opens its own link and closes it again; a failure returns false and leaves its reason in the
/// error record. Sending into the controller is "download", fetching from it "upload". The public
/// fields are those of `SessionProperties`. One operation runs at a time: a second one, begun by an
/// event while the first lets events run, is refused with the code `operationRunning`.
class Snappy : public SessionProperties {
  public:
    explicit Snappy(const SessionServices& services);
    ~Snappy();

    std::int32_t JobListCount() const;
    std::int32_t VarListCount() const;
    /// Of the last failure or decision; a success leaves it. So 5, "all", stays readable after
    /// later files that were sent without a question, until something else is recorded.
    std::int16_t ErrorCode() const;
    const std::string& ErrorFunction() const;
    std::int32_t ErrorIndex() const;
    std::string GetCTRLError(std::int32_t code) const;
    std::string JobList(std::int32_t index) const;
    std::string VarList(std::int32_t index) const;

    bool ReadDirectory(std::vector<std::string>& list);
    /// `overwriteAll` is read, not written: the answer All is reported as `ErrorCode` 5, which is
    /// also there when it was given for an earlier file.
    bool JobDownLoad(const std::string& file, bool overwriteAll = false);
    /// `JobDownLoad` with the overwrite flag, for a caller who has asked the operator by itself:
    /// replaces the jobs that were asked about, by the names of `jobsInTheWay`, and no others.
    /// `askedAs` is what `storedAs` was then. When something else is in the way by now, or the file
    /// would be stored under another name, the controller stays as it is and the code is
    /// `fileChanged`.
    bool replaceJobs(const std::string& file, const std::vector<std::string>& asked,
                     const std::string& askedAs = {});
    bool JobDelete(const std::string& name);
    bool JobUpLoad(const std::string& name, bool overwriteAll = false);
    bool JobListDownLoad();
    bool JobListUpLoad();
    void AddJobList(const std::string& entry);
    void JobListClear();
    void RemoveJobList(std::int32_t index);
    bool SetJobListFile(const std::string& file, bool unchecked = false);

    void SetVarListFile(const std::string& file);
    bool ReadVarListFile();
    void VarListClear();
    void AddVarList(const std::string& entry);
    void RemoveVarList(std::int32_t index);
    void SetLangageMode(std::int16_t selector);
    bool VarDownLoad(const std::string& entry);
    /// Fills in the values of the entry.
    bool VarUpLoad(std::string& entry);
    bool VarListDownLoad();
    bool VarListUpLoad();
    bool WriteVarListFile(const std::string& file);

    void Quit();
    /// 0 serial, 1 high-speed link; any other value sets the serial mode and returns false.
    bool SetTansMode(std::int16_t mode);

    /// True when the last failure was nobody's but a decision: the operator's Cancel, or the one
    /// that a silent session answers its questions with.
    bool wasCancelled() const;
    /// True when the last operation ended because the robot's address is not set, which leaves the
    /// error record as it was, or because the library cannot be used. The operator has been told
    /// already, so the caller reports nothing more.
    bool operatorIsTold() const;
    /// To be called when the operator is told, during an operation, why the library cannot be used.
    void noteOperatorTold();
    /// The text of `ErrorCode`, never empty. What a function of the library has returned has a text
    /// only where the controllers' codes are; our own findings have theirs.
    std::string errorText() const;
    /// `ErrorIndex` where it was recorded with the last failure; else 0, as for every step of a
    /// connection: an older one says nothing of it.
    std::int32_t failedIndex() const;
    /// Whether the last operation came as far as a file or a variable.
    bool triedAnEntry() const;
    /// What the system said to the last failure, where it was the system that refused a list file
    /// or the PC folder; empty for every other failure, whose code tells all that is known.
    const std::string& systemReason() const;
    /// How the last transfer of a list of jobs ended for each of its entries; empty when it came to
    /// none, and after every other operation.
    const std::vector<EntryEnd>& entryEnds() const;
    /// The mark in the PC folder for which the last failure was not to send a file, or empty.
    const std::string& unusableMark() const;
    /// Reads "LocalJob.lst" of `path` as a list transfer does: without one the list stays as it
    /// was.
    const LocalJobList& readLocalJobs();
    /// What the file transferred last would have replaced, in the order of its questions and by the
    /// names that these show: for a caller who let the silent session answer them with Cancel and
    /// now asks for itself. Empty when nothing was in the way.
    const std::vector<std::string>& jobsInTheWay() const;
    /// For whoever has listed a PC folder, with all of its names: files whose fetch ended with the
    /// program are put in order, and the operator is told. True when the folder was changed. May be
    /// called at any time; what a running operation fetches is left alone.
    bool settleInterruptedFetches(const std::string& folder, const std::vector<std::string>& names);

    /// The name under which the controller keeps the file of the last transfer, when its own job is
    /// in the way and is deleted for it all the same; else empty.
    const std::string& storedAs() const;
    /// What the last operation, if it was one that sends, has deleted on the controller without
    /// anything taking its place, by the directory's entries: since the send failed after it, or
    /// since the file is another job by its "//NAME" line.
    const std::vector<std::string>& unreplacedJobs() const;
    /// The file that `JobDownLoad` or `replaceJobs` has sent last, and the last reading of the
    /// controller's directory that succeeded, for a caller who has to know what has arrived. Each
    /// send begins with a reading of its own, which is the last one when it returns.
    const SentFile& lastSent() const;
    const DirectoryReading& lastReading() const;

    /// Tries a link to a controller, which need not be the one that operations reach now, and tells
    /// of each step as it ends. It leaves everything as it was: parameters, mode, error record and
    /// what is known of the last operation. While one runs nothing is tried, and the first step
    /// fails with the code `operationRunning`; an operation that is begun meanwhile is refused.
    void testLink(const LinkTarget& target, const std::function<void(const LinkTestStep&)>& ended);

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace vantrel
