#pragma once

#include "app/MainServices.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace vantrel {

/// Displaying and printing a job file of the PC pane. Both leave it to the caller to bring menus
/// and buttons in line.
class ViewerCommands {
  public:
    explicit ViewerCommands(MainServices services) : with_(std::move(services)) {}

    /// Shows the selected job-kind file of the PC pane, whichever pane is the active one, or hides
    /// the viewer when it is shown. Without such a file nothing changes; a file that cannot be read
    /// is told. What is shown stays as it was read, whatever becomes of the settings or the file.
    void showOrHide();
    /// Asks, then prints the text that is displayed; says so when there is none.
    void print();

  private:
    void show(const std::string& name);
    void hide();
    std::optional<std::string> selectedJobFile() const;
    void tell(std::int32_t messageNumber, const std::string& name, const std::string& reason) const;

    MainServices with_;
    std::string name_;
    std::string text_;
};

} // namespace vantrel
