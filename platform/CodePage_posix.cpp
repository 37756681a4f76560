#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/TextEncoding.h"

#include <array>
#include <cerrno>
#include <cstdint>

#include <iconv.h>

namespace vantrel {

namespace {

constexpr const char* codePage = "CP932";
constexpr const char* replacement = "\uFFFD";

/// One direction of conversion; the state is freed with the object.
class Converter {
  public:
    Converter(const char* to, const char* from) : state_(::iconv_open(to, from)) {}
    ~Converter() {
        if (isOpen())
            ::iconv_close(state_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool isOpen() const {
        // A failed opening gives the pointer that is -1 as a number.
        return reinterpret_cast<std::intptr_t>(state_) != -1;
    }

    /// Appends what is valid; what is left of the input begins with the offending byte. The input
    /// goes in pieces, since a checking build looks through the whole of each call's input.
    void convert(std::string_view& input, std::string& output) {
        bool isValid = true;
        while (isValid && !input.empty()) {
            const Step step = convertPiece(input.substr(0, buffer_.size()), output);
            // A character cut in two by the end of the piece is whole in the next one.
            isValid = step.used > 0 && !step.isStopped;
            input.remove_prefix(step.used);
        }
    }

  private:
    struct Step {
        std::size_t used; ///< bytes
        bool isStopped;   ///< by bytes that mean nothing
    };

    Step convertPiece(std::string_view piece, std::string& output) {
        char* in = const_cast<char*>(piece.data()); // iconv reads through it only
        std::size_t inLeft = piece.size();
        char* out = buffer_.data();
        std::size_t outLeft = buffer_.size();
        const auto result = ::iconv(state_, &in, &inLeft, &out, &outLeft);
        const bool isStopped = result == static_cast<std::size_t>(-1) && errno == EILSEQ;
        output.append(buffer_.data(), buffer_.size() - outLeft);
        return {piece.size() - inLeft, isStopped};
    }

    iconv_t state_;
    std::array<char, 4096> buffer_{};
};

} // namespace

std::optional<std::string> codePageBytes(std::string_view utf8) {
    if (isAscii(utf8))
        return std::string(utf8);
    Converter converter(codePage, "UTF-8");
    if (!converter.isOpen())
        return std::nullopt;
    std::string_view rest = utf8;
    std::string bytes;
    converter.convert(rest, bytes);
    // The converter takes a few look-alikes (a yen sign for the backslash) without a word.
    if (!rest.empty() || fromCodePage(bytes) != utf8)
        return std::nullopt;
    return bytes;
}

std::string fromCodePage(std::string_view bytes) {
    if (isAscii(bytes))
        return std::string(bytes);
    Converter converter("UTF-8", codePage);
    std::string text;
    while (!bytes.empty()) {
        if (converter.isOpen())
            converter.convert(bytes, text);
        if (!bytes.empty()) {
            text += replacement;
            bytes.remove_prefix(1);
        }
    }
    return text;
}

} // namespace vantrel
