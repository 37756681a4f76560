#pragma once

#include "app/viewer/PrintPages.h"
#include "app/viewer/ViewerCommands.h"

#include <optional>
#include <string>
#include <string_view>

#include <wx/cmndata.h>
#include <wx/print.h>

namespace vantrel {

class MessageTable;

/// A text on paper: fixed pitch, the file's name and the date of printing above, its folder and
/// date in a second row, the page's number below. Counts its pages once it knows the paper.
class ViewerPrintout : public wxPrintout {
  public:
    /// The text, UTF-8, is borrowed.
    ViewerPrintout(PrintedFile file, std::string_view text, std::string date,
                   const MessageTable& messages);

    void OnPreparePrinting() override;
    void GetPageInfo(int* first, int* last, int* from, int* to) override;
    bool HasPage(int page) override;
    bool OnPrintPage(int page) override;

  private:
    /// The paper as a grid of characters. Lengths are in the scaled units of the page's drawing.
    struct Grid {
        double scale = 1; ///< pixels per unit
        double left = 0, top = 0;
        double cellWidth = 1, cellHeight = 1;
        int columns = 1, rows = 1; ///< all rows, those above and below the text included
    };

    Grid measure(wxDC& dc) const;
    void drawFrame(wxDC& dc, int page) const;
    void drawHeading(wxDC& dc, int row, std::string_view left, std::string_view right) const;
    void drawRow(wxDC& dc, int row, std::string_view text) const;
    wxCoord x(double column) const;
    wxCoord y(int row) const;
    int pageCount() const;

    PrintedFile file_;
    std::string_view text_;
    std::string date_;
    const MessageTable& messages_;
    Grid grid_;
    std::optional<PrintPages> pages_;
};

/// Prints through the system's own print dialog, which on GTK offers a preview too. What the
/// operator chose there stays chosen for the rest of the run.
class WxFilePrinter : public FilePrinter {
  public:
    explicit WxFilePrinter(const MessageTable& messages) : messages_(messages) {}

    Outcome print(const PrintedFile& file, std::string_view text) override;

  private:
    const MessageTable& messages_;
    wxPrintData chosen_;
};

} // namespace vantrel
