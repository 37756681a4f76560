#include "ui/look/WrappedText.h"

#include "base/Text.h"

namespace vantrel {
namespace {

/// From here on the scripts that are written without blanks: kana, ideographs, full-width forms.
constexpr char32_t firstUnspaced = 0x2E80;

bool mayBreakAfter(char32_t character) {
    return character == U' ' || character >= firstUnspaced;
}

/// How many characters of `rest` make the next line: found by halving, since a wider piece is
/// never narrower than its beginning.
std::size_t fitting(std::u32string_view rest, int width,
                    const std::function<int(std::string_view)>& widthOf) {
    std::size_t fits = 1, tooMany = rest.size() + 1;
    while (tooMany - fits > 1) {
        const auto middle = fits + (tooMany - fits) / 2;
        (widthOf(utf8(rest.substr(0, middle))) <= width ? fits : tooMany) = middle;
    }
    return fits;
}

std::size_t lineLength(std::u32string_view rest, int width,
                       const std::function<int(std::string_view)>& widthOf) {
    const auto fits = fitting(rest, width, widthOf);
    if (fits == rest.size())
        return fits;
    for (auto length = fits; length > 0; --length)
        if (mayBreakAfter(rest[length - 1]))
            return length;
    return fits;
}

void appendWrapped(std::string& lines, std::u32string_view rest, int width,
                   const std::function<int(std::string_view)>& widthOf) {
    while (!rest.empty()) {
        const auto length = lineLength(rest, width, widthOf);
        lines += trimmed(utf8(rest.substr(0, length)), " ");
        rest.remove_prefix(length);
        if (!rest.empty())
            lines += '\n';
    }
}

} // namespace

std::string wrappedText(std::string_view text, int width,
                        const std::function<int(std::string_view)>& widthOf) {
    std::string result;
    for (const auto line : lines(text)) {
        if (!result.empty())
            result += '\n';
        appendWrapped(result, codePoints(line), width, widthOf);
    }
    return result;
}

} // namespace vantrel
