#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// How many columns a character takes in a fixed-pitch font: 2 for the wide characters of East
/// Asian scripts, 0 for marks that stand on the character before them, else 1.
int characterWidth(char32_t character);

/// In characters of a fixed-pitch font.
struct PageSize {
    int columns = 80;
    int rows = 60; ///< of text; what stands above and below them is not counted
};

/// A part of a row that is drawn in one go.
struct PrintedRun {
    int column = 0;
    std::string text; ///< UTF-8

    bool operator==(const PrintedRun&) const = default;
};

/// A text cut into pages: a line longer than a page is wide goes on in the next row, tabs lead to
/// the next multiple of eight columns, wide characters take two. The text is borrowed; only the
/// places where rows begin are kept, so a page costs something only when it is asked for.
class PrintPages {
  public:
    /// `text` is UTF-8; its lines end in CR LF, LF or CR. A size below one character counts as one.
    PrintPages(std::string_view text, PageSize size);

    /// At least one: a text without lines gives an empty page.
    std::size_t count() const;
    /// The rows of a page, counted from 0, as text with its tabs expanded; none for a page that is
    /// not there.
    std::vector<std::string> rows(std::size_t page) const;

  private:
    void cutLine(std::string_view line);

    PageSize size_;
    std::vector<std::string_view> rows_;
};

/// A row in runs: plain ASCII together, any other character with its marks alone, since it may come
/// from another font, of other widths, and everything is to stand in its own column.
std::vector<PrintedRun> printedRuns(std::string_view row);

/// A text shortened to so many columns, with an ellipsis in place of what is left out.
std::string fittingColumns(std::string_view text, int columns);
int columnsOf(std::string_view text);

} // namespace vantrel
