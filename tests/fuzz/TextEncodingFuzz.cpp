#include "FuzzInput.h"
#include "base/Text.h"
#include "platform/TextEncoding.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    const auto decoded = decodeText(input.file());
    fuzz::require(isValidUtf8(decoded.text), "decoded text is valid UTF-8");

    if (const auto bytes = encodeText(decoded.text, TextEncoding::Utf16LittleEndian))
        fuzz::require(decodeText(*bytes).text == decoded.text, "UTF-16 comes back");
    if (const auto bytes = encodeText(decoded.text, TextEncoding::CodePage))
        fuzz::require(fromCodePage(*bytes) == decoded.text, "the code page comes back");

    encodeText(input.file(), decoded.encoding);
    toCodePage(input.file());
    fuzz::require(isValidUtf8(fromCodePage(input.file())), "library text is valid UTF-8");
}
