#include "ui/WxFilePrinter.h"

#include "ui/ViewerPrintout.h"
#include "ui/dialogs/DialogParent.h"
#include "ui/look/WxText.h"

#include <wx/datetime.h>
#include <wx/log.h>
#include <wx/printdlg.h>

namespace vantrel {

namespace {

/// Takes what the toolkit has to say about a failure, which it would show in a box of its own.
class CollectedLog : public wxLog {
  public:
    CollectedLog() : before_(SetActiveTarget(this)) {}
    ~CollectedLog() override { SetActiveTarget(before_); }

    const wxString& text() const { return text_; }

  private:
    void DoLogTextAtLevel(wxLogLevel level, const wxString& message) override {
        if (level > wxLOG_Warning)
            return;
        if (!text_.empty())
            text_ += '\n';
        text_ += message;
    }

    wxLog* before_;
    wxString text_;
};

} // namespace

Outcome WxFilePrinter::print(const std::string& name, std::string_view text) {
    ViewerPrintout printout(name, text, fromWx(wxDateTime::Now().Format("%Y/%m/%d %H:%M")),
                            messages_);
    wxPrintDialogData settings(chosen_);
    wxPrinter printer(&settings);
    const CollectedLog log;
    constexpr bool withDialog = true;
    if (printer.Print(dialogParent(), &printout, withDialog)) {
        chosen_ = printer.GetPrintDialogData().GetPrintData();
        return Done{};
    }
    if (wxPrinter::GetLastError() == wxPRINTER_CANCELLED)
        return Done{};
    return Failure{fromWx(log.text())};
}

} // namespace vantrel
