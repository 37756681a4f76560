#pragma once

#include "files/PaneRows.h"
#include "files/PaneWindow.h"

#include <array>
#include <functional>
#include <optional>
#include <string>

#include <wx/listctrl.h>
#include <wx/panel.h>

namespace vantrel {

/// How a list's border looks.
enum class Appearance { Flat = 0, ThreeDimensional = 1 };

/// The views of a pane's list, by the number that the settings store.
enum class ListView { LargeIcons = 0, SmallIcons = 1, List = 2, Details = 3 };

/// The stored number as a view; an unknown number shows the list.
ListView listView(std::int16_t displayType);

/// One pane's file list, `lsvPC` or `lsvCtrl`: four views over the rows of a pane. Shows what the
/// rows say, never sorts or filters. The details view asks for visible rows only; the native
/// control behind the panel is made anew when the view changes, since neither system can turn that
/// on and off in place.
class FileListControl : public wxPanel, public PaneList {
  public:
    static constexpr std::size_t columnCount = 3;

    FileListControl(wxWindow* parent, const wxString& name);
    ~FileListControl() override;

    void setView(ListView view) { setView(view, appearance_); }
    void setView(ListView view, Appearance appearance);
    ListView view() const { return view_; }
    Appearance appearance() const { return appearance_; }
    /// What a screen reader calls the list.
    void setCaption(const wxString& caption);
    /// What stands in the list while it is empty, by `EmptyPane`. It is no item.
    void setHints(const std::array<wxString, 4>& hints);
    /// What stands there now; empty while there are rows.
    wxString hint() const;
    void setColumnTitles(const std::array<wxString, columnCount>& titles);
    /// Pixels; a width of 0 keeps the built-in one.
    void setColumnWidths(const std::array<int, columnCount>& widths);
    std::array<int, columnCount> columnWidths() const;

    void show(const PaneRows& rows) override;
    void update(const PaneRows& rows, const std::vector<std::size_t>& selected,
                std::optional<std::size_t> focused) override;
    std::vector<std::size_t> selectedRows() const override;
    std::size_t selectedCount() const override;
    std::optional<std::size_t> selectedRow() const override;
    void select(const std::vector<std::size_t>& rows) override;
    void focus() override;

    std::size_t itemCount() const;
    void selectAll();
    /// The native list, for what only it can do. It changes with the view.
    wxListView& native() { return *list_; }

    /// Called after the selection or the focused item changed by the operator or by a fill.
    std::function<void()> onSelectionChanged;
    /// Called with the row that was double-clicked or opened with Enter.
    std::function<void(long row)> onOpen;
    /// Called with the clicked header's column, from 0.
    std::function<void(int column)> onColumnClicked;
    /// Called when the list gets the keyboard focus or a mouse press.
    std::function<void()> onActivated;
    /// Called with every key pressed in the list; the list handles what the listener skips.
    std::function<void(wxKeyEvent&)> onKey;
    /// Called when the operator drags the selection.
    std::function<void()> onDragBegun;
    /// Called for a request of the pop-up menu, after the row under the pointer was selected, with
    /// the place of the pointer or, for the menu key, of the focused row.
    std::function<void(wxPoint screenPosition)> onMenuRequested;

  private:
    void createList();
    void paintEdge(wxPaintEvent& event);
    void bindEvents();
    void bindPresses(wxWindow& window);
    wxWindow& surface() const;
    void bindHint();
    void paintHint(wxPaintEvent& event);
    void describeForReaders();
    wxString focusedRowText() const;
    void addColumns();
    void fillItems();
    bool showsRowsAlready() const;
    void focusFirstFile();
    long focusedRow() const;
    wxPoint focusedItemPlace() const;
    void changed();

    const PaneRows* rows_ = nullptr;
    wxListView* list_ = nullptr;
    wxString listName_, caption_;
    std::array<wxString, 4> hints_;
    std::optional<EmptyPane> emptiness_; ///< of the rows when they were shown
    ListView view_ = ListView::List;
    Appearance appearance_ = Appearance::ThreeDimensional;
    std::array<wxString, columnCount> titles_;
    std::array<int, columnCount> widths_;
    bool filling_ = false;
    bool changePending_ = false;
};

} // namespace vantrel
