#pragma once

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

#ifdef _WIN32
#include "support/ReplacedImport.h"

#include <cstdint>

#include <shellapi.h>
#endif

namespace vantrel::tests {

#ifdef _WIN32

/// Stands in for the system's shell, which opens documents, and keeps what it was given.
class DocumentOpener {
  public:
    DocumentOpener() { given().clear(); }

    /// The paths it was given, each with a line end behind it.
    std::string opened() const { return given(); }

  private:
    static std::string& given() {
        static std::string paths;
        return paths;
    }
    static HINSTANCE WINAPI open(HWND /*owner*/, const wchar_t* /*verb*/, const wchar_t* document,
                                 const wchar_t* /*parameters*/, const wchar_t* /*folder*/,
                                 int /*show*/) {
        const auto path = std::filesystem::path(document).u8string();
        given() += std::string(path.begin(), path.end()) + '\n';
        constexpr std::uintptr_t fine = 33;
        return reinterpret_cast<HINSTANCE>(fine);
    }

    ReplacedImport shell_{"ShellExecuteW", reinterpret_cast<ReplacedImport::Function>(&open)};
};

#else

/// Stands in for the desktop's program that opens documents, and writes down what it was given.
class DocumentOpener {
  public:
    DocumentOpener() {
        const auto program = folder_.write("xdg-open", "#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" +
                                                           folder_.path("opened") + "'\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    /// The paths it was given, each with a line end behind it.
    std::string opened() const { return folder_.read("opened"); }

  private:
    TemporaryFolder folder_;
    EnvironmentVariable path_{"PATH", folder_.path()};
};

#endif

} // namespace vantrel::tests
