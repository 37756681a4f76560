#pragma once

#include "base/Result.h"

#include <array>
#include <string>

namespace vantrel {

struct ApplicationState;

/// Where the main window is when the settings are written; all in twips, with fractions.
struct WindowPlacement {
    bool isNormal = true; ///< neither minimised nor maximised
    double left = 0, top = 0, width = 0, height = 0;
    std::array<double, 3> columnWidths{}; ///< of the first three columns of `lsvPC`
};

/// The settings file: the executable's base name and ".ini" in the program's folder.
class SettingsFile {
  public:
    SettingsFile(std::string programFolder, std::string iniFileName);

    /// [Vantrel], [PCType] and [CtrlType] into the state; what is missing takes its default.
    void read(ApplicationState& state) const;
    /// The same keys in the same order. The caller decides whether a failure is reported.
    Outcome write(const ApplicationState& state, const WindowPlacement& placement) const;

    const std::string& path() const { return path_; }

  private:
    std::string programFolder_;
    std::string path_;
};

} // namespace vantrel
