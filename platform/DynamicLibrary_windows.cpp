#include "platform/DynamicLibrary.h"
#include "platform/System_windows.h"

#include <array>
#include <cstring>
#include <optional>

namespace vantrel {

namespace {

constexpr const char* noLibrary = "not a library of this system";

/// While it lives the system shows no boxes of its own about files that are missing or damaged.
class QuietErrors {
  public:
    QuietErrors() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &old_); }
    ~QuietErrors() { ::SetThreadErrorMode(old_, nullptr); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

  private:
    DWORD old_ = 0;
};

/// Reads at a place in a file; false when it ends before.
template <typename Part>
bool readAt(const Handle& file, LONG place, Part& part) {
    DWORD count = 0;
    return ::SetFilePointer(file.get(), place, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER &&
           ::ReadFile(file.get(), &part, sizeof part, &count, nullptr) && count == sizeof part;
}

struct ProgramHeader {
    std::array<char, 4> signature;
    IMAGE_FILE_HEADER file;
};

/// The kind of processor that a library is for.
Result<WORD> machineOf(const std::wstring& path) {
    const Handle file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isOpen())
        return lastFailure();
    IMAGE_DOS_HEADER start{};
    if (!readAt(file, 0, start) || start.e_magic != IMAGE_DOS_SIGNATURE || start.e_lfanew < 0)
        return Failure{noLibrary};
    ProgramHeader header{};
    if (!readAt(file, start.e_lfanew, header) ||
        std::memcmp(header.signature.data(), "PE\0\0", header.signature.size()) != 0)
        return Failure{noLibrary};
    return header.file.Machine;
}

std::string wordSize(WORD machine) {
    switch (machine) {
    case IMAGE_FILE_MACHINE_I386:
        return "32-bit";
    case IMAGE_FILE_MACHINE_AMD64:
        return "64-bit";
    default:
        return {};
    }
}

/// Why this program cannot load a library for that machine.
std::optional<Failure> mismatch(WORD library) {
#ifdef _WIN64
    constexpr WORD program = IMAGE_FILE_MACHINE_AMD64;
#else
    constexpr WORD program = IMAGE_FILE_MACHINE_I386;
#endif
    if (library == program)
        return std::nullopt;
    if (wordSize(library).empty())
        return Failure{"library for another kind of processor"};
    return Failure{wordSize(library) + " library, " + wordSize(program) + " program"};
}

/// With a drive or a server: a path that depends on the current drive is not absolute enough here.
bool isFullPath(std::string_view path) {
    const bool onDrive = path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
    return onDrive || path.starts_with(R"(\\)");
}

/// Only the library's own folder and the system's are searched for what it needs in its turn; the
/// current directory, to which anybody may write, never is.
HMODULE loadRestricted(const std::wstring& path) {
    const QuietErrors quiet;
    ::SetDllDirectoryW(L"");
    HMODULE library =
        ::LoadLibraryExW(path.c_str(), nullptr,
                         LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_APPLICATION_DIR |
                             LOAD_LIBRARY_SEARCH_SYSTEM32);
    // An old system without an update does not know those flags; its own restriction is weaker.
    if (!library && ::GetLastError() == ERROR_INVALID_PARAMETER)
        library = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    return library;
}

} // namespace

Result<std::unique_ptr<DynamicLibrary>> DynamicLibrary::load(const std::string& absolutePath) {
    if (!isFullPath(absolutePath) || hasNul(absolutePath))
        return Failure{"not an absolute path"};
    const std::wstring path = systemPath(absolutePath);
    const auto machine = machineOf(path);
    if (!machine)
        return Failure{machine.reason()};
    if (const auto failure = mismatch(*machine))
        return *failure;
    HMODULE library = loadRestricted(path);
    if (!library)
        return lastFailure();
    return std::unique_ptr<DynamicLibrary>(new DynamicLibrary(library));
}

DynamicLibrary::~DynamicLibrary() {
    if (!keptLoaded_)
        ::FreeLibrary(static_cast<HMODULE>(handle_));
}

void* DynamicLibrary::symbol(const std::string& name) const {
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(handle_), name.c_str()));
}

} // namespace vantrel
