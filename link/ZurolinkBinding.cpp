#include "link/ZurolinkBinding.h"

#include "base/PathRules.h"
#include "link/SessionErrorRecord.h"
#include "link/Zurolink.h"
#include "platform/DynamicLibrary.h"
#include "platform/Environment.h"
#include "platform/TextEncoding.h"

#include <utility>

namespace vantrel {
namespace {

/// Whether the system's compilers add to the names of standard calls.
#if defined(_WIN32) && !defined(_WIN64)
constexpr bool decoratedNames = true;
#else
constexpr bool decoratedNames = false;
#endif

/// Looks functions up and collects the names of those that are not there.
class Resolver {
  public:
    explicit Resolver(const DynamicLibrary& library) : library_(library) {}

    template <typename Function>
    void require(Function& function, const char* name, int argumentCount) {
        find(function, name, argumentCount);
        if (!function)
            missing_.emplace_back(name);
    }

    template <typename Function>
    void find(Function& function, const char* name, int argumentCount) {
        function = nullptr;
        for (const std::string& exported : exportNames(name, argumentCount, decoratedNames))
            if (!function)
                function = reinterpret_cast<Function>(library_.symbol(exported));
    }

    std::vector<std::string>& missing() { return missing_; }

  private:
    const DynamicLibrary& library_;
    std::vector<std::string> missing_;
};

} // namespace

struct ZurolinkBinding::Functions {
    std::unique_ptr<DynamicLibrary> library;
    ZurolinkTypes::BscOpen BscOpen;
    ZurolinkTypes::BscSetCom BscSetCom;
    ZurolinkTypes::BscSetEther BscSetEther;
    ZurolinkTypes::HandleOnly BscConnect, BscDisConnect, BscClose, BscDeleteJob;
    ZurolinkTypes::Find BscFindFirst, BscFindNext;
    ZurolinkTypes::Named BscDownLoad, BscUpLoad, BscSelectJob;
    ZurolinkTypes::BscGetVarData BscGetVarData;
    ZurolinkTypes::BscPutVarData BscPutVarData;
    ZurolinkTypes::SimulatorName ZurolinkSimulator; ///< null in the maker's library

    /// Returns the names of the functions that are missing.
    std::vector<std::string> resolve() {
        Resolver from(*library);
        from.require(BscOpen, "BscOpen", 2);
        from.require(BscSetCom, "BscSetCom", 6);
        from.require(BscSetEther, "BscSetEther", 4);
        from.require(BscConnect, "BscConnect", 1);
        from.require(BscDisConnect, "BscDisConnect", 1);
        from.require(BscClose, "BscClose", 1);
        from.require(BscFindFirst, "BscFindFirst", 3);
        from.require(BscFindNext, "BscFindNext", 3);
        from.require(BscDownLoad, "BscDownLoad", 2);
        from.require(BscUpLoad, "BscUpLoad", 2);
        from.require(BscSelectJob, "BscSelectJob", 2);
        from.require(BscDeleteJob, "BscDeleteJob", 1);
        from.require(BscGetVarData, "BscGetVarData", 4);
        from.require(BscPutVarData, "BscPutVarData", 4);
        from.find(ZurolinkSimulator, "ZurolinkSimulator", 0);
        return std::move(from.missing());
    }
};

ZurolinkBinding::ZurolinkBinding(const std::string& folder, Report report)
    : path_(PathRules().join(folder, libraryFileName())), report_(std::move(report)) {}

ZurolinkBinding::~ZurolinkBinding() {
    if (functions_ && !openLinks_.empty())
        functions_->library->keepLoaded();
}

void ZurolinkBinding::load() {
    if (std::exchange(loadTried_, true))
        return;
    auto library = DynamicLibrary::load(path_);
    if (!library) {
        problem_ = LibraryProblem{path_, library.reason(), {}};
        return;
    }
    auto functions = std::make_unique<Functions>();
    functions->library = std::move(*library);
    auto missing = functions->resolve();
    if (missing.empty())
        functions_ = std::move(functions);
    else
        problem_ = LibraryProblem{path_, {}, std::move(missing)};
}

const ZurolinkBinding::Functions* ZurolinkBinding::functions() {
    load();
    return functions_.get();
}

std::optional<std::string> ZurolinkBinding::simulation() {
    load();
    if (!functions_ || !functions_->ZurolinkSimulator)
        return {};
    const char* const name = functions_->ZurolinkSimulator();
    return fromCodePage(name ? name : "");
}

const std::optional<LibraryProblem>& ZurolinkBinding::problem() {
    load();
    return problem_;
}

template <typename Function, typename... Arguments>
std::int16_t ZurolinkBinding::call(Function Functions::*function, Arguments... arguments) {
    const Functions* const bound = functions();
    return bound ? (bound->*function)(arguments...) : session_code::libraryUnusable;
}

std::int16_t ZurolinkBinding::BscOpen(const char* path, std::int16_t type) {
    load();
    if (problem_ && report_)
        report_(*problem_);
    const std::int16_t handle = call(&Functions::BscOpen, path, type);
    if (handle >= 0)
        openLinks_.insert(handle);
    return handle;
}

std::int16_t ZurolinkBinding::BscSetCom(std::int16_t handle, std::int16_t port,
                                        std::int32_t baudrate, std::int16_t parity,
                                        std::int16_t dataLen, std::int16_t stopBit) {
    return call(&Functions::BscSetCom, handle, port, baudrate, parity, dataLen, stopBit);
}

std::int16_t ZurolinkBinding::BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                                          void* window) {
    return call(&Functions::BscSetEther, handle, ip, mode, window);
}

std::int16_t ZurolinkBinding::BscConnect(std::int16_t handle) {
    return call(&Functions::BscConnect, handle);
}

std::int16_t ZurolinkBinding::BscDisConnect(std::int16_t handle) {
    return call(&Functions::BscDisConnect, handle);
}

std::int16_t ZurolinkBinding::BscClose(std::int16_t handle) {
    const std::int16_t closed = call(&Functions::BscClose, handle);
    if (closed == 0)
        openLinks_.erase(handle);
    return closed;
}

std::int16_t ZurolinkBinding::BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) {
    return call(&Functions::BscFindFirst, handle, buffer, length);
}

std::int16_t ZurolinkBinding::BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) {
    return call(&Functions::BscFindNext, handle, buffer, length);
}

std::int16_t ZurolinkBinding::BscDownLoad(std::int16_t handle, const char* file) {
    return call(&Functions::BscDownLoad, handle, file);
}

std::int16_t ZurolinkBinding::BscUpLoad(std::int16_t handle, const char* file) {
    return call(&Functions::BscUpLoad, handle, file);
}

std::int16_t ZurolinkBinding::BscSelectJob(std::int16_t handle, const char* job) {
    return call(&Functions::BscSelectJob, handle, job);
}

std::int16_t ZurolinkBinding::BscDeleteJob(std::int16_t handle) {
    return call(&Functions::BscDeleteJob, handle);
}

std::int16_t ZurolinkBinding::BscGetVarData(std::int16_t handle, std::int16_t kind,
                                            std::int16_t number, double* values) {
    return call(&Functions::BscGetVarData, handle, kind, number, values);
}

std::int16_t ZurolinkBinding::BscPutVarData(std::int16_t handle, std::int16_t kind,
                                            std::int16_t number, const double* values) {
    return call(&Functions::BscPutVarData, handle, kind, number, values);
}

std::vector<std::string> exportNames(const std::string& function, int argumentCount,
                                     bool decorated) {
    std::vector<std::string> names{function};
    if (decorated) {
        // Every argument takes one 4-byte place on the stack.
        const std::string suffix = "@" + std::to_string(4 * argumentCount);
        names.push_back(function + suffix);
        names.push_back("_" + function + suffix);
    }
    return names;
}

} // namespace vantrel
