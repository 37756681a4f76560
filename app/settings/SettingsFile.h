#pragma once

#include "base/Result.h"

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

struct ApplicationState;

/// Where the main window is when the settings are written; all in twips, with fractions. A number
/// that nobody changed is passed as it stands in `WindowPos` (see twipsUnlessUnchanged).
struct WindowPlacement {
    bool isNormal = true; ///< neither minimised nor maximised
    double left = 0, top = 0, width = 0, height = 0;
    std::array<double, 3> columnWidths{}; ///< of the first three columns of `lsvPC`
};

/// `IniFileName` for an executable, given with or without its folder: its base name and ".ini".
std::string settingsFileName(std::string_view executable);

/// The settings file: the executable's base name and ".ini" in the program's folder.
class SettingsFile {
  public:
    SettingsFile(const std::string& programFolder, const std::string& iniFileName);

    /// [Vantrel], [PCType] and [CtrlType] into the state; what is missing takes its default.
    /// Numbers stay as they are stored, in range or not; one beyond the field's bits becomes the
    /// nearest that the field can hold.
    void read(ApplicationState& state) const;
    /// The same keys in the same order. A text that the file's encoding cannot express keeps its
    /// old value and makes the outcome a failure; everything else is written all the same. The
    /// caller decides whether a failure is reported.
    Outcome write(const ApplicationState& state, const WindowPlacement& placement) const;

    const std::string& path() const { return path_; }

  private:
    std::string programFolder_;
    std::string path_;
};

/// Connecting changes the current directory, so that a relative folder of the settings would not
/// stay the same one: it starts from the program's.
void makeFolderAbsolute(ApplicationState& state, const std::string& programFolder);

} // namespace vantrel
