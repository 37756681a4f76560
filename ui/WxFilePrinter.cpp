#include "ui/WxFilePrinter.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/WxText.h"

#include <algorithm>
#include <cmath>

#include <wx/datetime.h>
#include <wx/dc.h>
#include <wx/log.h>
#include <wx/printdlg.h>

namespace vantrel {
namespace {

constexpr double margin = 15;     ///< millimetres
constexpr double rowHeight = 4.2; ///< millimetres
constexpr double millimetresPerInch = 25.4;
// Above the text two rows of its heading and a ruled one, below it an empty row and the page's
// number.
constexpr int rowsAbove = 3;
constexpr int rowsBelow = 2;

wxFont printFont() {
    constexpr int points = 10; // any: the page is scaled to the height of its rows
    return wxFontInfo(points).Family(wxFONTFAMILY_TELETYPE);
}

void prepare(wxDC& dc, double scale) {
    dc.SetUserScale(scale, scale);
    dc.SetFont(printFont());
    dc.SetTextForeground(*wxBLACK);
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.SetPen(*wxBLACK_PEN);
}

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

ViewerPrintout::ViewerPrintout(PrintedFile file, std::string_view text, std::string date,
                               const MessageTable& messages)
    : wxPrintout(toWx(file.name)), file_(std::move(file)), text_(text), date_(std::move(date)),
      messages_(messages) {}

void ViewerPrintout::OnPreparePrinting() {
    grid_ = measure(*GetDC());
    pages_.emplace(text_, PageSize{grid_.columns, grid_.rows - rowsAbove - rowsBelow});
}

ViewerPrintout::Grid ViewerPrintout::measure(wxDC& dc) const {
    Grid grid;
    int resolution = 0, resolutionDown = 0, width = 0, height = 0; // pixels
    GetPPIPrinter(&resolution, &resolutionDown);
    GetPageSizePixels(&width, &height);
    const double millimetre = std::max(1, resolution) / millimetresPerInch;
    prepare(dc, 1);
    grid.scale = rowHeight * millimetre / std::max(1, dc.GetCharHeight());
    // Characters are fitted to the pixels, so their width is known at the page's scale only.
    prepare(dc, grid.scale);
    const auto cells = dc.GetTextExtent(wxString('0', 100));
    grid.cellWidth = std::max(1, cells.x) / 100.0;
    grid.cellHeight = rowHeight * millimetre / grid.scale;
    grid.left = margin * millimetre / grid.scale;
    grid.top = grid.left;
    grid.columns = int((width / grid.scale - 2 * grid.left) / grid.cellWidth);
    grid.rows = int((height / grid.scale - 2 * grid.top) / grid.cellHeight);
    return grid;
}

int ViewerPrintout::pageCount() const {
    return pages_ ? int(pages_->count()) : 1;
}

void ViewerPrintout::GetPageInfo(int* first, int* last, int* from, int* to) {
    *first = *from = 1;
    *last = *to = pageCount();
}

bool ViewerPrintout::HasPage(int page) {
    return page >= 1 && page <= pageCount();
}

bool ViewerPrintout::OnPrintPage(int page) {
    wxDC* const dc = GetDC();
    if (!dc || !pages_ || !HasPage(page))
        return false;
    prepare(*dc, grid_.scale);
    drawFrame(*dc, page);
    int row = rowsAbove;
    for (const auto& text : pages_->rows(std::size_t(page - 1)))
        drawRow(*dc, row++, text);
    return true;
}

void ViewerPrintout::drawFrame(wxDC& dc, int page) const {
    drawHeading(dc, 0, file_.name, date_);
    drawHeading(dc, 1, file_.folder, file_.changed);
    const auto rule = y(2) + wxCoord(grid_.cellHeight / 4);
    dc.DrawLine(x(0), rule, x(grid_.columns), rule);
    const auto number = messages_.getMessage(message::page) + std::to_string(page) +
                        messages_.getMessage(message::progressOf) + std::to_string(pageCount());
    const auto bottom = std::max(rowsAbove + rowsBelow, grid_.rows) - 1;
    dc.DrawText(toWx(number), x((grid_.columns - columnsOf(number)) / 2.0), y(bottom));
}

void ViewerPrintout::drawHeading(wxDC& dc, int row, std::string_view left,
                                 std::string_view right) const {
    const int rightColumns = columnsOf(right);
    drawRow(dc, row, fittingColumns(left, grid_.columns - rightColumns - 2));
    dc.DrawText(toWx(std::string(right)), x(grid_.columns - rightColumns), y(row));
}

void ViewerPrintout::drawRow(wxDC& dc, int row, std::string_view text) const {
    for (const auto& run : printedRuns(text))
        dc.DrawText(toWx(run.text), x(run.column), y(row));
}

wxCoord ViewerPrintout::x(double column) const {
    return wxCoord(std::lround(grid_.left + column * grid_.cellWidth));
}

wxCoord ViewerPrintout::y(int row) const {
    return wxCoord(std::lround(grid_.top + row * grid_.cellHeight));
}

Outcome WxFilePrinter::print(const PrintedFile& file, std::string_view text) {
    ViewerPrintout printout(file, text, fromWx(wxDateTime::Now().Format("%Y/%m/%d %H:%M")),
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
