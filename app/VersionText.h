#pragma once

#include <string>

namespace vantrel {

struct ProgramVersion {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// This program's version, from the build.
ProgramVersion programVersion();

/// Major, a point, then minor and revision written one after the other: 1, 2, 3 gives "1.23". So
/// the version has been shown on every machine in the field; service staff compare it by eye.
std::string versionText(const ProgramVersion& version);

} // namespace vantrel
