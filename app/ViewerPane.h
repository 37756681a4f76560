#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// The file viewer as its command sees it: it stands in the place of the controller pane.
class ViewerPane {
  public:
    virtual ~ViewerPane() = default;

    /// Shows a text in place of the controller pane. The text is borrowed until the next call of
    /// either function.
    virtual void showFile(const std::string& name, std::string_view text) = 0;
    /// Shows the controller pane again.
    virtual void hideFile() = 0;
};

} // namespace vantrel
