#pragma once

#include "files/TransferServices.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// Which robot the session's last operation was about, where it is, and why the operation failed,
/// in lines of their own below a message.
std::string directoryFailure(const ApplicationState& state, const Snappy& session);

/// The function that failed and why, with the number by which a service man asks for it.
std::string functionAndReason(const Snappy& session);
/// The same of a failure that the session does not record; `text` is that of the code.
std::string functionAndReason(const std::string& function, std::int16_t code,
                              const std::string& text);

/// Whether the operator needs no word of the session's last failure: he pressed Cancel, or the
/// session has told him of an address that is not set.
bool operatorKnows(const Snappy& session);

/// Whether Cancel ended the session's last operation while it read the directory, before its first
/// file: it has changed nothing on either side.
bool wasCancelledReading(const Snappy& session);

/// What the transfer commands tell the operator, each in a message box with an exclamation icon.
class TransferReports {
  public:
    explicit TransferReports(const TransferServices& services) : with_(services) {}

    /// "[name]" and a message.
    void aboutFile(const std::string& name, std::int32_t messageNumber) const;
    /// The same with a reason in words: "[name] message ( reason )".
    void aboutFile(const std::string& name, std::int32_t messageNumber,
                   const std::string& reason) const;

    /// A message about several files, whose names follow below it: the first ones, and how many
    /// there are more.
    void aboutFiles(std::int32_t messageNumber, const std::vector<std::string>& names) const;
    /// What the session's last send has deleted on the controller for nothing, if there is any.
    void unreplacedJobs() const;

    /// The session's last failure as a failed transfer, of one file or of a list, with the file's
    /// name in a line of its own.
    void transferFailed(const std::string& name) const;
    /// False, without a word, when the operator knows.
    bool listTransferFailed() const;
    /// A failed transfer that the session knows nothing of.
    void transferFailed(const std::string& function, const std::string& reason) const;
    void deletionFailed(const std::string& name) const;
    /// The file has arrived, but the session could not delete the controller's job.
    void originalNotDeleted(const std::string& name) const;

    /// The session's last failure as one of reading the controller's directory, unless the operator
    /// knows.
    void controllerNotRead() const;

    /// What stands below the session's last failure whatever the report's form: the PC folder, or
    /// the mark in it, where that is the reason, and what the failure cost the robot.
    std::string furtherLines() const;

    void tell(const std::string& text) const;

  private:
    void tellTransferFailure(const std::string& end, const std::string& name) const;
    std::string markLine() const;
    std::string folderLine() const;
    std::string unreplacedLine() const;
    std::string linesOf(const std::vector<std::string>& names) const;

    TransferServices with_;
};

} // namespace vantrel
