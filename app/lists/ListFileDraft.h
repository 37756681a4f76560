#pragma once

#include "app/lists/ListTransferCommands.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct ApplicationState;
class MessageBoxes;
class MessageTable;
class Snappy;

/// How the list-file dialog ended.
namespace list_file_result {
inline constexpr std::string_view listRead = "1";
inline constexpr std::string_view listNotRead = "0";
} // namespace list_file_result

/// What the list-file dialog knows and decides, without its window: which list file of the PC
/// pane's folder the session reads.
class ListFileDraft {
  public:
    /// `mode` is one of the modes "0" to "3".
    ListFileDraft(ApplicationState& state, Snappy& session, MessageBoxes& boxes,
                  const MessageTable& messages, std::string_view mode);

    std::string title() const;
    std::string fieldLabel() const;
    std::string hint() const;
    /// The PC pane's folder, shortened for display.
    std::string shownFolder() const;
    const std::string& folder() const;
    std::string okCaption() const;
    std::string cancelCaption() const;

    /// Preset with the list file used last, unless that is a pattern.
    const std::string& name() const { return name_; }
    void setName(std::string name) { name_ = std::move(name); }

    /// The folder's list files as the PC pane knows them, by name. Which of them hold jobs and
    /// which variables only their content tells, so all are offered; "LocalJob.lst" is none of
    /// either.
    const std::vector<std::string>& offered() const { return offered_; }
    std::string offeredLabel() const;
    /// The place of the name among them: the file itself, or the first that begins with it.
    std::optional<std::size_t> nearest() const;
    bool isOffered(std::size_t place) const;
    /// The file that an arrow key brings: from one that is offered the next, or with -1 the one
    /// before it, from the beginning of a name the first that begins with it.
    std::optional<std::string> neighbour(int step) const;

    /// Off while the name is empty or not a plain one: a wildcard, another folder.
    bool canConfirm() const;
    /// The name without outer blanks, with ".lst" at its end when it holds no ".".
    std::string completedName() const;

    /// Has the session read the list file. A file that cannot be read is named to the operator.
    void confirm();
    void abandon();

    /// "1" when the list was read, "0" otherwise.
    const std::string& result() const { return result_; }

  private:
    bool isForVariables() const;
    void findOffered();
    bool readList(const std::string& file);
    void tellWhyNotRead(const std::string& file) const;

    ApplicationState& state_;
    Snappy& session_;
    MessageBoxes& boxes_;
    const MessageTable& messages_;
    std::string mode_;
    std::string name_;
    std::vector<std::string> offered_;
    std::string result_{list_file_result::listNotRead};
};

} // namespace vantrel
