#pragma once

#include "link/Zurolink.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace vantrel {

/// Why the communication library cannot be used.
struct LibraryProblem {
    std::string path;                 ///< where it was looked for
    std::string reason;               ///< in the system's words; empty when functions are missing
    std::vector<std::string> missing; ///< every function that the library lacks
};

/// The real library, bound at run time from one folder only. It is loaded by the first operation
/// that needs it; all functions are resolved before any is used. When it cannot be used that is
/// reported by each `BscOpen`, with which an operation begins, and every call returns
/// `session_code::libraryUnusable`. It is unloaded with the object, unless a link is still open
/// then: the library may be at work on it.
class ZurolinkBinding final : public Zurolink {
  public:
    using Report = std::function<void(const LibraryProblem&)>;

    /// `folder` is absolute.
    ZurolinkBinding(const std::string& folder, Report report);
    ~ZurolinkBinding() override;

    /// What the library says of itself when it is a simulation, else nothing. Loads the library,
    /// but reports no problem with it: that is left to the first operation.
    std::optional<std::string> simulation();
    /// Why the library cannot be used, if it cannot. Loads it, and reports nothing.
    const std::optional<LibraryProblem>& problem();

    std::int16_t BscOpen(const char* path, std::int16_t type) override;
    std::int16_t BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                           std::int16_t parity, std::int16_t dataLen,
                           std::int16_t stopBit) override;
    std::int16_t BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                             void* window) override;
    std::int16_t BscConnect(std::int16_t handle) override;
    std::int16_t BscDisConnect(std::int16_t handle) override;
    std::int16_t BscClose(std::int16_t handle) override;
    std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) override;
    std::int16_t BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) override;
    std::int16_t BscDownLoad(std::int16_t handle, const char* file) override;
    std::int16_t BscUpLoad(std::int16_t handle, const char* file) override;
    std::int16_t BscSelectJob(std::int16_t handle, const char* job) override;
    std::int16_t BscDeleteJob(std::int16_t handle) override;
    std::int16_t BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               double* values) override;
    std::int16_t BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               const double* values) override;

  private:
    struct Functions;

    /// Binds the library or notes the problem; only the first call does anything.
    void load();
    /// For an operation: all functions, or null with the problem reported.
    const Functions* functions();
    template <typename Function, typename... Arguments>
    std::int16_t call(Function Functions::*function, Arguments... arguments);

    std::string path_;
    Report report_;
    std::unique_ptr<Functions> functions_; ///< all of them or none
    std::optional<LibraryProblem> problem_;
    std::set<std::int16_t> openLinks_; ///< handles that were opened and not closed
    bool loadTried_ = false;
};

/// The names under which a function may be exported: its plain name and, on 32-bit Windows
/// (`decorated`), the two forms that compilers give a standard call with that many arguments.
std::vector<std::string> exportNames(const std::string& function, int argumentCount,
                                     bool decorated);

} // namespace vantrel
