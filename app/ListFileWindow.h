#pragma once

#include <string_view>

namespace vantrel {

/// The list-file dialog, as the commands that need a list see it.
class ListFileWindow {
  public:
    virtual ~ListFileWindow() = default;

    /// Shows it in the mode "0" (jobs to the PC), "1" (jobs to the controller), "2" (variables to
    /// the PC) or "3" (variables to the controller). True when the session has read the list file
    /// that was chosen; its name is then the state's `JobListFile` or `VarListFile`.
    virtual bool readList(std::string_view mode) = 0;
};

} // namespace vantrel
