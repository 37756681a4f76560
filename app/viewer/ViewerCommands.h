#pragma once

#include "app/commands/MainServices.h"
#include "base/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

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

/// What is printed, as it was when it was read.
struct PrintedFile {
    std::string name;
    std::string folder;
    std::string changed; ///< date of the last change, or empty
};

/// Prints texts, implemented by the windows.
class FilePrinter {
  public:
    virtual ~FilePrinter() = default;

    /// Lets the operator choose a printer and prints the text, under name, folder and date of its
    /// file. An operator who chooses none is no failure. The text is borrowed for the call.
    virtual Outcome print(const PrintedFile& file, std::string_view text) = 0;
};

/// Displaying and printing a job file of the PC pane. Both leave it to the caller to bring menus
/// and buttons in line.
class ViewerCommands {
  public:
    explicit ViewerCommands(MainServices services) : with_(std::move(services)) {}

    /// Shows the selected job-kind file of the PC pane, whichever pane is the active one, or hides
    /// the viewer when it is shown. Without such a file nothing changes; a file that cannot be read
    /// is told. What is shown stays as it was read, whatever becomes of the settings or the file.
    void showOrHide();
    /// Shows a text that was read already; `folder` says in print where its file is.
    void showText(const std::string& name, const std::string& folder, std::string text);
    /// Shows the lines with their numbers from now on, or without; they are not printed.
    void showLineNumbers(bool shown);
    bool lineNumbersShown() const { return lineNumbers_; }
    /// Asks, then prints the text that is displayed; says so when there is none.
    void print();

  private:
    void show(const std::string& name);
    void showInPane();
    void hide();
    std::optional<std::string> selectedJobFile() const;
    void tell(std::int32_t messageNumber, const std::string& name, const std::string& reason) const;

    MainServices with_;
    PrintedFile file_;
    std::string text_;
    std::string numbered_; ///< what is shown while numbers are
    bool lineNumbers_ = false;
};

} // namespace vantrel
