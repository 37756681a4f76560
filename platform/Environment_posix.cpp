#include "base/PathRules.h"
#include "platform/Descriptor_posix.h"
#include "platform/DetachedProgram_posix.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/LanguageNames.h"

#include <array>
#include <cstdlib>
#include <vector>

#include <pwd.h>

namespace vantrel {

namespace {

/// The desktop's own opener: it knows the user's choices for each kind of file.
constexpr const char* desktopOpener = "xdg-open";

Outcome openWithDesktop(const std::string& path) {
    struct stat details {};
    if (!readDetails(path, details))
        return systemFailure(errno);
    // An absolute path is never taken for an option or an address.
    return startDetached(desktopOpener,
                         path.starts_with('/') ? path : currentFolder() + '/' + path);
}

} // namespace

std::string executablePath() {
    std::string path(256, '\0');
    while (true) {
        const auto length = ::readlink("/proc/self/exe", path.data(), path.size());
        if (length < 0)
            return {};
        if (static_cast<std::size_t>(length) < path.size())
            return path.substr(0, static_cast<std::size_t>(length));
        path.resize(path.size() * 2);
    }
}

std::string programPath() {
    std::string executable = executablePath();
    const char* folder = std::getenv("VANTREL_FOLDER");
    if (!folder || *folder != '/')
        return executable;
    return PathRules().join(folder, executable.substr(executable.rfind('/') + 1));
}

std::string userName() {
    constexpr std::size_t mostBytes = 16384;
    std::vector<char> bytes(mostBytes);
    passwd entry{};
    passwd* found = nullptr;
    const int error = ::getpwuid_r(::geteuid(), &entry, bytes.data(), bytes.size(), &found);
    return error == 0 && found ? std::string(found->pw_name) : std::string();
}

std::string computerName() {
    std::array<char, 256> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? std::string(name.data())
                                                            : std::string();
}

std::uint64_t processNumber() {
    return static_cast<std::uint64_t>(::getpid());
}

std::string localeLanguageName() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value && *value != '\0')
            return languageNameOfLocale(value);
    }
    return languageNameOfLocale("");
}

Outcome openDocument(const std::string& path) {
    return openWithDesktop(path);
}

/// The desktop's program for the file too: what VISUAL and EDITOR name usually needs a terminal,
/// and a window has none.
Outcome editTextFile(const std::string& path) {
    return openWithDesktop(path);
}

std::string libraryFileName() {
    return "libZurolink.so";
}

} // namespace vantrel
