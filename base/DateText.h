#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace vantrel {

/// A date and time as fixed-width text, "2026/11/20 08:05:09", or nothing.
/// Held in place, without an allocation, since a listing may have 100,000 of them; because of the
/// fixed width the order of the texts is the order of the times.
class DateText {
  public:
    static constexpr std::size_t length = 19;

    DateText() = default;
    explicit DateText(std::string_view text) {
        std::copy_n(text.begin(), std::min(text.size(), length), characters_.begin());
    }

    std::string_view view() const { return {characters_.data()}; }
    bool operator==(const DateText&) const = default;

  private:
    std::array<char, length + 1> characters_{};
};

} // namespace vantrel
