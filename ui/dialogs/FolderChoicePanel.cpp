#include "ui/dialogs/FolderChoicePanel.h"

#include "link/ShownText.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/FolderNodes.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <utility>

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int treeWidth = 200;
constexpr int fileListWidth = 150;
constexpr int listHeight = 150;

} // namespace

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

FolderChoicePanel::FolderChoicePanel(wxWindow* parent, FolderChoiceSource sources,
                                     const std::string& caption)
    : wxPanel(parent, wxID_ANY), choice_(std::move(sources)) {
    SetSizer(buildControls(caption));
    bindEvents();
}

wxSizer* FolderChoicePanel::buildControls(const std::string& caption) {
    wxArrayString drives;
    for (const Drive& drive : choice_.drives())
        drives.Add(toWx(shownText(drive.text)));
    lblDirName_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                   wxST_ELLIPSIZE_MIDDLE | wxST_NO_AUTORESIZE, "lblDirName");
    lblDirName_->SetMinSize(FromDIP(wxSize(treeWidth, -1)));
    Drive1_ = new wxChoice(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(treeWidth, -1)),
                           drives, 0, wxDefaultValidator, "Drive1");
    Dir1_ =
        new wxTreeCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(treeWidth, listHeight)),
                       wxTR_HAS_BUTTONS | wxTR_LINES_AT_ROOT | wxTR_NO_LINES | wxTR_HIDE_ROOT |
                           wxTR_SINGLE | wxTR_FULL_ROW_HIGHLIGHT | wxBORDER_SIMPLE,
                       wxDefaultValidator, "Dir1");
    Dir1_->SetImages(folderImages());
    File1_ = new FileNameList(this, "File1");
    File1_->SetMinSize(FromDIP(wxSize(fileListWidth, listHeight)));
    for (wxWindow* const control : {static_cast<wxWindow*>(Drive1_), static_cast<wxWindow*>(Dir1_),
                                    static_cast<wxWindow*>(File1_)})
        setAccessibleName(*control, toWx(caption));

    auto* const lists = new wxBoxSizer(wxHORIZONTAL);
    lists->Add(Dir1_, wxSizerFlags(4).Expand());
    lists->Add(File1_, wxSizerFlags(3).Expand().Border(wxLEFT, FromDIP(6)));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(lblDirName_, wxSizerFlags().Expand());
    column->Add(Drive1_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(4)));
    column->Add(lists, wxSizerFlags(1).Expand().Border(wxTOP, FromDIP(4)));
    return column;
}

void FolderChoicePanel::bindEvents() {
    Drive1_->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
        const wxBusyCursor busy;
        choice_.chooseDrive(std::size_t(event.GetSelection()));
        rebuildTree();
        chosen();
    });
    Dir1_->Bind(wxEVT_TREE_ITEM_EXPANDING, &FolderChoicePanel::expanding, this);
    Dir1_->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
        const auto node = nodeOf(*Dir1_, event.GetItem());
        if (filling_ || node == FolderTree::none)
            return;
        const wxBusyCursor busy;
        choice_.choose(node);
        chosen();
    });
    // A tree cannot scroll before it has its size, which it takes after this event.
    Dir1_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        Dir1_->CallAfter([this] { showSelectedFolder(*Dir1_); });
    });
    // Enter opens and closes a folder here; the dialog's button is not meant.
    onEnter(*Dir1_, [this] {
        const auto item = Dir1_->GetSelection();
        if (item.IsOk() && Dir1_->ItemHasChildren(item))
            Dir1_->Toggle(item);
    });
    onEnter(*File1_, [] {});
    keepEnter(*Drive1_);
}

void FolderChoicePanel::show(const std::string& folder) {
    if (folder == choice_.folder() && Dir1_->GetCount() > 0)
        return;
    choice_.show(folder);
    rebuildTree();
    refresh();
}

void FolderChoicePanel::focusDrives() {
    Drive1_->SetFocus();
}

void FolderChoicePanel::focusFolders() {
    Dir1_->SetFocus();
}

void FolderChoicePanel::rebuildTree() {
    filling_ = true;
    Dir1_->DeleteAllItems();
    addFolderNodes(*Dir1_, Dir1_->AddRoot(wxString()), choice_.tree(), choice_.tree().roots());
    showSelectedFolder(*Dir1_);
    filling_ = false;
}

void FolderChoicePanel::expanding(wxTreeEvent& event) {
    const auto item = event.GetItem();
    const auto node = nodeOf(*Dir1_, item);
    if (filling_ || node == FolderTree::none || Dir1_->GetChildrenCount(item, false) > 0)
        return;
    const wxBusyCursor busy;
    const auto nodes = choice_.open(node);
    addFolderNodes(*Dir1_, item, choice_.tree(), nodes);
    if (!nodes.empty())
        return;
    Dir1_->SetItemHasChildren(item, false);
    event.Veto();
}

void FolderChoicePanel::chosen() {
    refresh();
    if (onChosen)
        onChosen(choice_.folder());
}

void FolderChoicePanel::refresh() {
    lblDirName_->SetLabelText(toWx(shownText(choice_.folder())));
    lblDirName_->SetToolTip(toWx(shownText(choice_.folder())));
    Drive1_->SetSelection(choice_.drive() ? int(*choice_.drive()) : wxNOT_FOUND);
    File1_->show(choice_.files());
}

} // namespace vantrel
