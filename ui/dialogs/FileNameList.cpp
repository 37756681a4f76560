#include "ui/dialogs/FileNameList.h"

#include "ui/look/WxText.h"

namespace vantrel {

FileNameList::FileNameList(wxWindow* parent, const wxString& name)
    : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_VIRTUAL | wxLC_NO_HEADER | wxLC_SINGLE_SEL | wxBORDER_SIMPLE,
                 wxDefaultValidator, name) {
    AppendColumn("");
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        fitColumn();
    });
}

void FileNameList::show(const std::vector<std::string>& names) {
    names_ = names;
    // The row that was selected means nothing in another folder.
    if (const long row = GetFirstSelected(); row >= 0)
        Select(row, false);
    SetItemCount(long(names_.size()));
    Refresh();
}

wxString FileNameList::OnGetItemText(long item, long) const {
    const auto row = std::size_t(item);
    return row < names_.size() ? toWx(names_[row]) : wxString();
}

void FileNameList::fitColumn() {
    const int width = GetClientSize().x - wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    if (width > 0)
        SetColumnWidth(0, width);
}

} // namespace vantrel
