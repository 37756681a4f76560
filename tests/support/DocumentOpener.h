#pragma once

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace vantrel::tests {

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

} // namespace vantrel::tests
