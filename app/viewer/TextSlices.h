#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel {

/// Hands a text out in slices for a text control, which takes seconds for a large one: whole lines
/// as long as they are of a usual length, each ended by a line feed. A line of more than
/// `longestLine` bytes is shown on several, since a control's time for one line grows with much
/// more than its length. The text, UTF-8 with lines ending in CR LF, LF or CR, is borrowed.
class TextSlices {
  public:
    static constexpr std::size_t longestLine = 4000;

    TextSlices() = default;
    explicit TextSlices(std::string_view text) : rest_(text) {}

    /// What is shown on one line.
    struct Piece {
        std::string_view text;
        bool endsLine = true; ///< false when the line was cut here
    };

    bool isDone() const { return rest_.empty(); }
    /// The next piece of a text that is not done, without its line feed.
    Piece nextPiece();
    /// The next slice, of about `size` bytes: it ends with the line that reaches that size.
    std::string next(std::size_t size);

  private:
    std::string_view rest_;
};

} // namespace vantrel
