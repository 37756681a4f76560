#pragma once

#ifdef _WIN32
#include <windows.h>
#endif

namespace vantrel::tests {

/// Whether the system is Wine, which differs from the real one in places that the tests name.
inline bool isUnderWine() {
#ifdef _WIN32
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
#else
    return false;
#endif
}

} // namespace vantrel::tests
