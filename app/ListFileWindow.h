#pragma once

#include <string_view>

namespace vantrel {

/// Modes of the list-file dialog: what its list is for.
namespace list_file_mode {
inline constexpr std::string_view saveJobs = "0";      ///< from the controller to the PC
inline constexpr std::string_view loadJobs = "1";      ///< from the PC to the controller
inline constexpr std::string_view saveVariables = "2"; ///< from the controller to the PC
inline constexpr std::string_view loadVariables = "3"; ///< from the PC to the controller
} // namespace list_file_mode

/// The list-file dialog, as the commands that need a list see it.
class ListFileWindow {
  public:
    virtual ~ListFileWindow() = default;

    /// Shows it in one of the modes "0" to "3". True when the session has read the list file
    /// that was chosen; its name is then the state's `JobListFile` or `VarListFile`.
    virtual bool readList(std::string_view mode) = 0;
};

} // namespace vantrel
