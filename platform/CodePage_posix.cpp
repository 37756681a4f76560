#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/TextEncoding.h"

#include <array>
#include <cerrno>
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

    bool isOpen() const { return state_ != reinterpret_cast<iconv_t>(-1); }

    /// Converts as far as the input is valid; what is left begins with the offending byte.
    std::string convert(std::string_view& input) const {
        std::string output;
        std::array<char, 8192> buffer;
        char* in = const_cast<char*>(input.data()); // iconv reads through it only
        std::size_t inLeft = input.size();
        std::size_t result = 0;
        do {
            char* out = buffer.data();
            std::size_t outLeft = buffer.size();
            result = ::iconv(state_, &in, &inLeft, &out, &outLeft);
            output.append(buffer.data(), buffer.size() - outLeft);
        } while (result == static_cast<std::size_t>(-1) && errno == E2BIG);
        input.remove_prefix(input.size() - inLeft);
        return output;
    }

  private:
    iconv_t state_;
};

} // namespace

std::optional<std::string> codePageBytes(std::string_view utf8) {
    if (isAscii(utf8))
        return std::string(utf8);
    const Converter converter(codePage, "UTF-8");
    if (!converter.isOpen())
        return std::nullopt;
    std::string_view rest = utf8;
    std::string bytes = converter.convert(rest);
    // The converter takes a few look-alikes (a yen sign for the backslash) without a word.
    if (!rest.empty() || fromCodePage(bytes) != utf8)
        return std::nullopt;
    return bytes;
}

std::string fromCodePage(std::string_view bytes) {
    if (isAscii(bytes))
        return std::string(bytes);
    const Converter converter("UTF-8", codePage);
    std::string text;
    while (!bytes.empty()) {
        if (converter.isOpen())
            text += converter.convert(bytes);
        if (!bytes.empty()) {
            text += replacement;
            bytes.remove_prefix(1);
        }
    }
    return text;
}

} // namespace vantrel
