#include "ui/FileListControl.h"

#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WrappedText.h"
#include "ui/look/WxText.h"

#include <wx/dcclient.h>
#include <wx/renderer.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/wupdlock.h>

namespace vantrel {

namespace {

constexpr int largeIconSize = 32;
constexpr int smallIconSize = 16;
constexpr int hintMargin = 12; ///< device-independent pixels
constexpr int edgeWidth = 2;   ///< around a sunken list, device-independent pixels
// In pixels at 96 dpi; what the settings' default column widths come to.
constexpr std::array<int, FileListControl::columnCount> builtInWidths{93, 47, 100};

long viewStyle(ListView view) {
    switch (view) {
    case ListView::LargeIcons:
        return wxLC_ICON;
    case ListView::SmallIcons:
        return wxLC_SMALL_ICON;
    case ListView::List:
        return wxLC_LIST;
    case ListView::Details:
        return wxLC_REPORT | wxLC_VIRTUAL;
    }
    return wxLC_LIST;
}

wxString text(std::string_view utf8) {
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

wxVector<wxBitmapBundle> kindIcons(int size) {
    wxVector<wxBitmapBundle> icons;
    for (const auto kind : {FileKind::Folder, FileKind::JobFile, FileKind::PlainFile})
        icons.push_back(icon(imageKey(kind), wxSize(size, size)));
    return icons;
}

int imageIndex(FileKind kind) {
    return kind == FileKind::Folder ? 0 : kind == FileKind::JobFile ? 1 : 2;
}

/// The native control; in details view it asks the rows for what is visible.
class NativeList : public wxListView {
  public:
    NativeList(wxWindow* parent, long style, const wxString& name, const PaneRows* const& rows)
        : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style, wxDefaultValidator,
                     name),
          rows_(rows) {}

  private:
    bool has(long item) const { return rows_ && item >= 0 && std::size_t(item) < rows_->size(); }

    wxString OnGetItemText(long item, long column) const override {
        if (!has(item))
            return {};
        const auto row = std::size_t(item);
        if (column == 0)
            return text(rows_->name(row));
        return column == 1 ? text(rows_->sizeText(row)) : text(rows_->dateText(row));
    }

    int OnGetItemImage(long item) const override {
        return has(item) ? imageIndex(rows_->kind(std::size_t(item))) : -1;
    }

    const PaneRows* const& rows_;
};

} // namespace

ListView listView(std::int16_t displayType) {
    return displayType >= 0 && displayType <= 3 ? static_cast<ListView>(displayType)
                                                : ListView::List;
}

FileListControl::FileListControl(wxWindow* parent, const wxString& name)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
              wxTAB_TRAVERSAL | wxFULL_REPAINT_ON_RESIZE),
      listName_(name) {
    for (std::size_t column = 0; column < columnCount; ++column)
        widths_[column] = FromDIP(builtInWidths[column]);
    SetSizer(new wxBoxSizer(wxVERTICAL));
    Bind(wxEVT_PAINT, &FileListControl::paintEdge, this);
    createList();
}

/// The native list speaks of its end; that has to come while there is still somebody to hear it.
FileListControl::~FileListControl() {
    onSelectionChanged = nullptr;
    onActivated = nullptr;
    filling_ = true;
    list_->Destroy();
}

void FileListControl::createList() {
    const bool isFlat = appearance_ == Appearance::Flat;
    const long border = isFlat ? wxBORDER_SIMPLE : wxBORDER_NONE;
    list_ = new NativeList(this, viewStyle(view_) | wxLC_AUTOARRANGE | border, listName_, rows_);
    list_->SetFont(GetFont());
    list_->SetNormalImages(kindIcons(largeIconSize));
    list_->SetSmallImages(kindIcons(smallIconSize));
    addColumns();
    bindEvents();
    bindHint();
    describeForReaders();
    GetSizer()->Add(list_, 1, wxEXPAND | wxALL, isFlat ? 0 : FromDIP(edgeWidth));
    Layout();
}

/// The systems' lists have no border of their own that looks sunken in every theme; their text
/// fields have.
void FileListControl::paintEdge(wxPaintEvent&) {
    wxPaintDC dc(this);
    if (appearance_ == Appearance::ThreeDimensional)
        wxRendererNative::Get().DrawTextCtrl(this, dc, GetClientRect());
}

void FileListControl::addColumns() {
    if (view_ != ListView::Details)
        return;
    for (std::size_t column = 0; column < columnCount; ++column) {
        const auto format = column == 1 ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT;
        list_->AppendColumn(titles_[column], format, widths_[column]);
    }
}

void FileListControl::setView(ListView view, Appearance appearance) {
    if (view == view_ && appearance == appearance_)
        return;
    const auto selected = selectedRows();
    const bool hadFocus = list_->HasFocus();
    widths_ = columnWidths();
    const wxWindowUpdateLocker frozen(this);
    list_->Destroy();
    view_ = view;
    appearance_ = appearance;
    createList();
    fillItems();
    select(selected);
    if (hadFocus)
        list_->SetFocus();
}

void FileListControl::setCaption(const wxString& caption) {
    caption_ = caption;
    describeForReaders();
}

void FileListControl::setHints(const std::array<wxString, 4>& hints) {
    hints_ = hints;
    surface().Refresh();
    describeForReaders();
}

wxString FileListControl::hint() const {
    return emptiness_ ? hints_.at(std::size_t(*emptiness_)) : wxString();
}

/// The window that shows the rows and has the keyboard: a part of the list in the port that draws
/// its lists itself.
wxWindow& FileListControl::surface() const {
    for (wxWindow* const part : list_->GetChildren())
        if (part->GetName() != "wxlistctrlcolumntitles")
            return *part;
    return *list_;
}

void FileListControl::bindHint() {
    surface().Bind(wxEVT_PAINT, &FileListControl::paintHint, this);
    surface().Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        if (!hint().empty())
            surface().Refresh(); // it stands in the middle
        event.Skip();
    });
}

/// A list without items has nothing else to paint on its surface.
void FileListControl::paintHint(wxPaintEvent& event) {
    const wxString text = hint();
    if (text.empty() || list_->GetItemCount() > 0)
        return event.Skip();
    wxPaintDC dc(&surface());
    dc.SetBackground(wxBrush(list_->GetBackgroundColour()));
    dc.Clear();
    dc.SetFont(list_->GetFont());
    dc.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    const wxRect inside = wxRect(surface().GetClientSize()).Deflate(FromDIP(hintMargin));
    const auto lines = wrappedText(fromWx(text), inside.width, [&dc](std::string_view piece) {
        return dc.GetTextExtent(toWx(std::string(piece))).x;
    });
    dc.DrawLabel(toWx(lines), inside, wxALIGN_CENTRE);
}

void FileListControl::describeForReaders() {
    setAccessibleName(surface(), caption_);
    describeFocusedRow(surface(), list_->GetItemCount() > 0 ? focusedRowText() : hint());
}

wxString FileListControl::focusedRowText() const {
    const long row = list_->GetFocusedItem();
    if (!rows_ || row < 0 || std::size_t(row) >= rows_->size())
        return {};
    wxString words = text(rows_->name(std::size_t(row)));
    for (const auto& more :
         {text(rows_->sizeText(std::size_t(row))), text(rows_->dateText(std::size_t(row)))})
        if (!more.empty())
            words += ", " + more;
    return words;
}

void FileListControl::setColumnTitles(const std::array<wxString, columnCount>& titles) {
    titles_ = titles;
    if (view_ != ListView::Details)
        return;
    for (std::size_t column = 0; column < columnCount; ++column) {
        wxListItem item;
        item.SetMask(wxLIST_MASK_TEXT);
        item.SetText(titles[column]);
        list_->SetColumn(int(column), item);
    }
}

void FileListControl::setColumnWidths(const std::array<int, columnCount>& widths) {
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (widths[column] <= 0)
            continue;
        widths_[column] = widths[column];
        if (view_ == ListView::Details)
            list_->SetColumnWidth(int(column), widths[column]);
    }
}

std::array<int, FileListControl::columnCount> FileListControl::columnWidths() const {
    if (view_ != ListView::Details)
        return widths_;
    std::array<int, columnCount> widths{};
    for (std::size_t column = 0; column < columnCount; ++column)
        widths[column] = list_->GetColumnWidth(int(column));
    return widths;
}

void FileListControl::show(const PaneRows& rows) {
    rows_ = &rows;
    emptiness_ = rows.emptiness();
    const wxWindowUpdateLocker frozen(list_);
    fillItems();
    surface().Refresh();
    select(rows.size() > 0 ? std::vector<std::size_t>{0} : std::vector<std::size_t>{});
}

void FileListControl::update(const PaneRows& rows, const std::vector<std::size_t>& selected,
                             std::optional<std::size_t> focused) {
    rows_ = &rows;
    emptiness_ = rows.emptiness();
    const wxWindowUpdateLocker frozen(list_);
    // Only there the systems know what is on the screen.
    const long top = view_ == ListView::Details ? list_->GetTopItem() : 0;
    fillItems();
    filling_ = true;
    for (const auto old : selectedRows())
        list_->SetItemState(long(old), 0, wxLIST_STATE_SELECTED);
    for (const auto row : selected)
        list_->SetItemState(long(row), wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    if (focused)
        list_->SetItemState(long(*focused), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    filling_ = false;
    // The last row comes into view first, so that the old one ends at the top again.
    if (top > 0 && top < list_->GetItemCount() && list_->GetTopItem() != top) {
        list_->EnsureVisible(list_->GetItemCount() - 1);
        list_->EnsureVisible(top);
    } else if (view_ != ListView::Details && focused) {
        list_->EnsureVisible(long(*focused));
    }
    surface().Refresh();
    changed();
}

void FileListControl::fillItems() {
    filling_ = true;
    const long count = rows_ ? long(rows_->size()) : 0;
    if (view_ == ListView::Details) {
        list_->SetItemState(-1, 0, wxLIST_STATE_SELECTED);
        list_->SetItemCount(count);
        if (rows_)
            list_->ShowSortIndicator(rows_->sortColumn(), !rows_->isDescending());
        list_->Refresh();
    } else if (!showsRowsAlready()) {
        list_->DeleteAllItems();
        for (long row = 0; row < count; ++row)
            list_->InsertItem(row, text(rows_->name(std::size_t(row))),
                              imageIndex(rows_->kind(std::size_t(row))));
    }
    filling_ = false;
}

/// Laying out an item costs far more than looking at it, and rows are often shown again unchanged.
bool FileListControl::showsRowsAlready() const {
    const std::size_t count = rows_ ? rows_->size() : 0;
    if (itemCount() != count)
        return false;
    wxListItem item;
    item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
    for (std::size_t row = 0; row < count; ++row) {
        item.SetId(long(row));
        if (!list_->GetItem(item) || item.GetImage() != imageIndex(rows_->kind(row)) ||
            item.GetText() != text(rows_->name(row)))
            return false;
    }
    return true;
}

std::vector<std::size_t> FileListControl::selectedRows() const {
    std::vector<std::size_t> rows;
    for (long item = list_->GetFirstSelected(); item != -1; item = list_->GetNextSelected(item))
        rows.push_back(std::size_t(item));
    return rows;
}

std::size_t FileListControl::selectedCount() const {
    return std::size_t(list_->GetSelectedItemCount());
}

void FileListControl::select(const std::vector<std::size_t>& rows) {
    filling_ = true;
    for (const auto old : selectedRows())
        list_->SetItemState(long(old), 0, wxLIST_STATE_SELECTED);
    for (const auto row : rows)
        list_->SetItemState(long(row), wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    if (!rows.empty()) {
        list_->SetItemState(long(rows.front()), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
        list_->EnsureVisible(long(rows.front()));
    }
    filling_ = false;
    changed();
}

void FileListControl::selectAll() {
    const wxWindowUpdateLocker frozen(list_);
    filling_ = true;
    // Item by item: only some of the ports accept -1 for all of them.
    for (long item = 0; item < list_->GetItemCount(); ++item)
        list_->SetItemState(item, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    focusFirstFile();
    filling_ = false;
    changed();
}

/// The commands are offered by the selected item that has the focus: with a folder none of them
/// would be, although all files are selected.
void FileListControl::focusFirstFile() {
    for (std::size_t row = 0; rows_ && row < rows_->size(); ++row) {
        if (rows_->kind(row) == FileKind::Folder)
            continue;
        list_->SetItemState(long(row), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
        return;
    }
}

void FileListControl::focus() {
    list_->SetFocus();
}

std::size_t FileListControl::itemCount() const {
    return std::size_t(list_->GetItemCount());
}

/// The row that has the keyboard focus, or the first selected one, or -1.
long FileListControl::focusedRow() const {
    const long focused = list_->GetFocusedItem();
    return focused != -1 && focused < list_->GetItemCount() ? focused : list_->GetFirstSelected();
}

std::optional<std::size_t> FileListControl::selectedRow() const {
    const long focused = focusedRow();
    const long row =
        focused == -1 || list_->IsSelected(focused) ? focused : list_->GetFirstSelected();
    return row == -1 ? std::nullopt : std::optional(std::size_t(row));
}

/// A change of 1,000 items raises 1,000 events; the listener hears of it once, when they are done.
void FileListControl::changed() {
    if (filling_ || changePending_)
        return;
    changePending_ = true;
    CallAfter([this] {
        changePending_ = false;
        describeForReaders();
        if (onSelectionChanged)
            onSelectionChanged();
    });
}

/// A press activates the pane also when its list has the focus already. Not every press gives the
/// list the focus, and a menu that closes gives it back to the list that had it, with the pane.
void FileListControl::bindPresses(wxWindow& window) {
    for (const auto& press : {wxEVT_LEFT_DOWN, wxEVT_RIGHT_DOWN})
        window.Bind(press, [this](wxMouseEvent& event) {
            if (!list_->HasFocus())
                focus();
            if (onActivated)
                onActivated();
            event.Skip();
        });
}

void FileListControl::bindEvents() {
    const auto selectionChanged = [this](wxListEvent& event) {
        changed();
        event.Skip();
    };
    list_->Bind(wxEVT_LIST_ITEM_SELECTED, selectionChanged);
    list_->Bind(wxEVT_LIST_ITEM_DESELECTED, selectionChanged);
    list_->Bind(wxEVT_LIST_ITEM_FOCUSED, selectionChanged);
    list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& event) {
        if (onOpen)
            onOpen(event.GetIndex());
    });
    list_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
        if (onColumnClicked)
            onColumnClicked(event.GetColumn());
    });
    list_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        if (onKey)
            onKey(event);
        else
            event.Skip();
    });
    list_->Bind(wxEVT_LIST_BEGIN_DRAG, [this](wxListEvent&) {
        if (onDragBegun)
            onDragBegun();
    });
    list_->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        if (onActivated)
            onActivated();
        event.Skip();
    });
    // The port that draws its lists itself does so in a child window, which gets the presses.
    for (wxWindow* part : list_->GetChildren())
        bindPresses(*part);
    bindPresses(*list_);
    list_->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) {
        const wxPoint place = event.GetPosition();
        if (onMenuRequested)
            onMenuRequested(place == wxDefaultPosition ? focusedItemPlace() : place);
    });
}

/// Below the item, where the menu key's menu belongs; the list's corner when there is none.
wxPoint FileListControl::focusedItemPlace() const {
    wxRect item;
    const long row = focusedRow();
    if (row == -1 || !list_->GetItemRect(row, item, wxLIST_RECT_LABEL))
        return list_->GetScreenPosition();
    return list_->ClientToScreen(item.GetBottomLeft());
}

} // namespace vantrel
