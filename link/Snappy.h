#pragma once

#include "base/TransferMode.h"
#include "link/SessionErrorRecord.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class LanguageFiles;
class MessageTable;
class OperatorDialog;
class ProgressPanel;
class Zurolink;

/// What the session works with; everything is borrowed and outlives it.
struct SessionServices {
    Zurolink& library;
    TransferMode& TransMode; ///< shared with the main window; read at every connect
    MessageTable& messages;
    const LanguageFiles& languages;
    ProgressPanel& progress;
    OperatorDialog& dialog;
    std::string programFolder;            ///< absolute; made current by every connect
    std::function<void*()> dummyWindow;   ///< the handle of `frmDumy`, loaded on first use
};

/// The one controller session: every operation on a controller passes through it. Each operation
/// opens its own link and closes it again; a failure returns false and leaves its reason in the
/// error record. Sending into the controller is "download", fetching from it "upload".
class Snappy {
  public:
    explicit Snappy(const SessionServices& services);
    ~Snappy();

    std::int16_t port = 1;        ///< 1 = COM1
    std::int32_t Baudrate = 9600; ///< bit/s
    std::int16_t parity = 2;
    std::int16_t DataLen = 8;
    std::int16_t StopBit = 0;
    std::string path;                    ///< the PC folder that the library works in
    bool DisplayMonitor = true;          ///< off: no progress, every question answers Cancel
    std::string MonitorTitle = "Snappy"; ///< caption of progress and questions
    std::string IPaddress;               ///< dotted form

    std::int32_t JobListCount() const;
    std::int32_t VarListCount() const;
    std::int16_t ErrorCode() const;
    const std::string& ErrorFunction() const;
    std::int32_t ErrorIndex() const;
    std::string GetCTRLError(std::int32_t code) const;
    std::string JobList(std::int32_t index) const;
    std::string VarList(std::int32_t index) const;

    bool ReadDirectory(std::vector<std::string>& list);
    /// `overwriteAll` is read, not written: the answer All is reported as `ErrorCode` 5.
    bool JobDownLoad(const std::string& file, bool overwriteAll = false);
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

    /// True when the last operation ended because the robot's address is not set. The operator has
    /// been told already and the error record is as it was, so the caller reports nothing more.
    bool endedByUnsetAddress() const;

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace vantrel
