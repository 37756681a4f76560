#include "ui/dialogs/frmResult.h"

#include "app/results/ResultCommands.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

#include <wx/button.h>
#include <wx/filedlg.h>
#include <wx/iconbndl.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int listWidth = 560;
constexpr int listHeight = 260;
constexpr int widestColumn = 400;

enum Column { columnName, columnEnd, columnReason };

/// The rows are asked for as they are seen: a command may have thousands.
class ResultList : public wxListView {
  public:
    ResultList(wxWindow* parent, const CommandResult& result, const MessageTable& messages)
        : wxListView(parent, wxID_ANY, wxDefaultPosition,
                     parent->FromDIP(wxSize(listWidth, listHeight)),
                     wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL, wxDefaultValidator, "lsvResult"),
          result_(result), messages_(messages) {
        SetItemCount(long(result_.items.size()));
    }

  private:
    wxString OnGetItemText(long row, long column) const override {
        const ItemResult& item = result_.items.at(std::size_t(row));
        if (column == columnName)
            return toWx(shownText(item.name));
        return toWx(column == columnEnd ? endText(messages_, result_, item.end)
                                        : shownText(item.reason));
    }

    const CommandResult& result_;
    const MessageTable& messages_;
};

} // namespace

frmResult::frmResult(wxWindow* parent, const ResultCommands& results, const MessageTable& messages,
                     const ApplicationState& state)
    : wxDialog(parent, wxID_ANY, toWx(messages.getMessage(message::resultTitle)), wxDefaultPosition,
               wxDefaultSize, wxCAPTION | wxCLOSE_BOX | wxRESIZE_BORDER, "frmResult"),
      results_(results), result_(*results.last()), messages_(messages) {
    SetIcons(programIcons());
    buildList();
    const int gap = FromDIP(12);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(buildHead(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    column->Add(lsvResult_, wxSizerFlags(1).Expand().Border(wxALL, gap));
    column->Add(buildButtons(), wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizer(column);
    swallowF1(*this);
    applyCaptionFont(*this, state);
    fitColumns();
    fitToContents(*this);
    CentreOnParent();
    lsvResult_->SetFocus();
}

wxSizer* frmResult::buildHead() {
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const std::string& text, const char* name) {
        if (text.empty())
            return;
        auto* const label =
            new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(listWidth, -1)),
                             wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE, name);
        label->SetLabelText(toWx(shownText(text)));
        label->SetToolTip(toWx(text));
        rows->Add(label, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(4)));
    };
    add(resultLine(messages_, result_), "lblResult");
    add(result_.place, "lblPlace");
    add(result_.folder, "lblFolder");
    return rows;
}

void frmResult::buildList() {
    lsvResult_ = new ResultList(this, result_, messages_);
    const std::int32_t captions[] = {message::resultColumnName, message::resultColumnEnd,
                                     message::resultColumnReason};
    for (const std::int32_t caption : captions)
        lsvResult_->AppendColumn(toWx(messages_.getMessage(caption)));
}

/// As wide as the first rows ask for; the others can be reached by the header.
void frmResult::fitColumns() {
    constexpr long measured = 200;
    const long rows = std::min<long>(lsvResult_->GetItemCount(), measured);
    const int room = lsvResult_->GetTextExtent("MM").x;
    for (int column = 0; column < lsvResult_->GetColumnCount(); ++column) {
        wxListItem head;
        head.SetMask(wxLIST_MASK_TEXT);
        lsvResult_->GetColumn(column, head);
        int width = lsvResult_->GetTextExtent(head.GetText()).x;
        for (long row = 0; row < rows; ++row)
            width =
                std::max(width, lsvResult_->GetTextExtent(lsvResult_->GetItemText(row, column)).x);
        lsvResult_->SetColumnWidth(column, std::min(width, FromDIP(widestColumn)) + room);
    }
}

wxSizer* frmResult::buildButtons() {
    const auto add = [&](std::int32_t caption, const char* name, std::function<void()> action) {
        auto* const button = newCaptionButton(this, messages_.getMessage(caption), name);
        button->Bind(wxEVT_BUTTON, [action = std::move(action)](wxCommandEvent&) { action(); });
        return button;
    };
    auto* const cmdClose = add(message::resultClose, "cmdClose", [this] { EndModal(wxID_CLOSE); });
    auto* const cmdTryAgain =
        add(message::resultTryAgain, "cmdTryAgain", [this] { EndModal(wxID_RETRY); });
    auto* const cmdSave = add(message::resultSave, "cmdSave", [this] { save(); });
    auto* const cmdPrint = add(message::resultPrint, "cmdPrint", [this] { results_.print(); });
    cmdTryAgain->Enable(results_.canTryAgain());
    cmdClose->SetDefault();
    SetEscapeId(cmdClose->GetId());
    return buttonRow(std::array{cmdClose, cmdTryAgain, cmdSave, cmdPrint});
}

void frmResult::save() {
    wxFileDialog dialog(this, GetTitle(), toWx(result_.folder), "result.txt", "*.txt",
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialog.ShowModal() == wxID_OK)
        results_.save(fromWx(dialog.GetPath()));
}

} // namespace vantrel
