#include "base/PathRules.h"
#include "platform/System_windows.h"
#include "simulator/LibraryLocation.h"

namespace vantrel::simulator {

namespace {

std::wstring fileOf(HMODULE library) {
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length =
            ::GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

} // namespace

std::string libraryFolder() {
    HMODULE library = nullptr;
    constexpr DWORD byAddress =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!::GetModuleHandleExW(byAddress, reinterpret_cast<const wchar_t*>(&libraryFolder),
                              &library))
        return {};
    return PathRules().parent(narrow(fileOf(library)));
}

} // namespace vantrel::simulator
