#pragma once

#include "base/ApplicationState.h"
#include "base/Result.h"
#include "files/PaneRows.h"

#include <string>
#include <vector>

namespace vantrel {

class MessageTable;
class PaneWindow;
class Snappy;
class TransferTable;

/// Both panes' contents: reads the listings, fills and sorts the lists and writes the counts.
class Panes {
  public:
    Panes(ApplicationState& state, Snappy& session, const TransferTable& table,
          const MessageTable& messages, PaneWindow& window);

    /// Lists `folder` into the PC listing and makes it the PC folder, the session's too; false,
    /// with the listing and the folder as they were, when it cannot be opened. What an interrupted
    /// fetch left there is settled before, with a message.
    bool scanPC(const std::string& folder);
    /// Reads the controller's directory and adds the table's fixed names; false, with the listing
    /// as it was, when the session could not read it.
    bool readController();
    /// Takes these entries out, which the controller has no more.
    void dropFromController(const std::vector<std::string>& names);
    /// No entries, for a controller that was not read.
    void emptyController();
    /// The same, shown: the list of one machine never stands beside the name of another.
    void showEmptyController();

    /// Rebuilds a list control from its listing, with the pane's filter and order, and its count in
    /// the status bar. False, with an empty list, when the listing is not whole.
    bool fill(ActiveSide side);
    /// Puts the rows in the order of the listing's sort state and shows them.
    void sort(ActiveSide side);
    void showCount(ActiveSide side);
    /// Fills both filter boxes for the current controller model, entry 0 chosen.
    void fillFilterChoices();

    FolderListing& listing(ActiveSide side);
    const PaneRows& rows(ActiveSide side) const;
    /// The names of the selected rows, in list order.
    std::vector<std::string> selectedNames(ActiveSide side) const;
    /// Selects the rows that have one of these names, if any is still there.
    void selectNames(ActiveSide side, const std::vector<std::string>& names);

  private:
    Result<FolderListing> lookAt(const std::string& folder);
    PaneRows& changeableRows(ActiveSide side);

    ApplicationState& state_;
    Snappy& session_;
    const TransferTable& table_;
    const MessageTable& messages_;
    PaneWindow& window_;
    PaneRows pcRows_;
    PaneRows controllerRows_;
};

} // namespace vantrel
