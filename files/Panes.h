#pragma once

#include "base/ApplicationState.h"
#include "base/Result.h"
#include "files/PaneRows.h"

#include <cstddef>
#include <cstdint>
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
    /// Whether names have come to the PC folder or gone since it was scanned, by the folder's own
    /// date.
    bool hasPCChanged() const;
    /// Lists the PC folder again after somebody else has worked in it, and shows what is new there.
    /// What was selected and is gone leaves nothing else selected in its place. False when there is
    /// nothing new; a folder that cannot be opened any more stays as it is shown.
    bool rescanPC();
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
    /// From the next fill on the pane shows only names that hold this text; an empty one shows all.
    void setNameFilter(ActiveSide side, std::string text);
    bool nameFilterHides(ActiveSide side, const std::string& name) const;
    /// The same, shown at once and without letting events in: what is typed meanwhile is typed into
    /// this very text. What was selected and is still shown stays selected, and nothing else is.
    void filterNames(ActiveSide side, std::string text);
    /// Puts the rows in the order of the listing's sort state and shows them.
    void sort(ActiveSide side);
    void showCount(ActiveSide side);
    /// Shows beside the PC's count how many of its items are selected and their size, where there
    /// are several.
    void showSelection();
    /// Fills both filter boxes for the current controller model, entry 0 chosen.
    void fillFilterChoices();

    FolderListing& listing(ActiveSide side);
    const PaneRows& rows(ActiveSide side) const;
    /// The names of the selected rows, in list order.
    std::vector<std::string> selectedNames(ActiveSide side) const;
    /// Selects the rows that have one of these names, if any is still there.
    void selectNames(ActiveSide side, const std::vector<std::string>& names);
    /// Selects the rows that have one of these names and no others, be there none.
    void selectOnly(ActiveSide side, const std::vector<std::string>& names);

  private:
    Result<FolderListing> lookAt(const std::string& folder);
    bool fillRows(ActiveSide side);
    /// What an operator has chosen in a pane, by names.
    struct Choice {
        std::vector<std::string> selected;
        std::vector<std::string> focused; ///< one or none
    };
    Choice choice(ActiveSide side) const;
    void showChanged(ActiveSide side, const Choice& kept);
    std::vector<std::size_t> rowsOf(ActiveSide side, const std::vector<std::string>& names) const;
    std::string selectionText() const;
    PaneRows& changeableRows(ActiveSide side);

    ApplicationState& state_;
    Snappy& session_;
    const TransferTable& table_;
    const MessageTable& messages_;
    PaneWindow& window_;
    PaneRows pcRows_;
    PaneRows controllerRows_;
    std::string nameFilter_[2]; ///< by `ActiveSide`
    std::int64_t pcNamesChangedAt_ = 0;
    bool isSelectionShown_ = false;
};

} // namespace vantrel
