#include "ui/look/PlainCaption.h"

namespace vantrel {
namespace {

/// "(&X)", as East Asian captions carry their letter.
constexpr std::size_t bracketedLength = 4;

bool isBracketedMnemonic(std::string_view text) {
    return text.size() >= bracketedLength && text[0] == '(' && text[1] == '&' && text[3] == ')';
}

} // namespace

std::string withoutMnemonic(std::string_view caption) {
    std::string plain;
    while (!caption.empty()) {
        if (isBracketedMnemonic(caption)) {
            caption.remove_prefix(bracketedLength);
            continue;
        }
        // "&&" stands for one real "&".
        if (caption[0] == '&' && caption.size() > 1)
            caption.remove_prefix(1);
        plain += caption[0];
        caption.remove_prefix(1);
    }
    if (plain.ends_with("..."))
        plain.resize(plain.size() - 3);
    return plain;
}

} // namespace vantrel
