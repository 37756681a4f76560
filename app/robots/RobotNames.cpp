#include "app/robots/RobotNames.h"

#include "app/robots/RobotFile.h"
#include "base/RobotRecord.h"
#include "platform/ProfileText.h"

#include <cstddef>
#include <utility>

namespace vantrel {
namespace {

/// The bytes as ASCII that both readers take apart as they do the file's text. Every other
/// character, and the sign that stands before its number, is written as a number.
class AsciiNumbers {
  public:
    void add(unsigned unit) {
        if (unit < 0x80 && unit != '%')
            text_ += static_cast<char>(unit);
        else
            text_ += '%' + std::to_string(unit) + ';';
    }
    std::string take() { return std::move(text_); }

  private:
    std::string text_;
};

unsigned byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

std::string withNumbers(std::string_view content, TextEncoding encoding) {
    AsciiNumbers numbers;
    if (encoding != TextEncoding::Utf16LittleEndian) {
        for (std::size_t index = encoding == TextEncoding::Utf8WithMark ? 3 : 0;
             index < content.size(); ++index)
            numbers.add(byteAt(content, index));
        return numbers.take();
    }
    const std::size_t low = content.starts_with('\xFF') ? 0 : 1;
    for (std::size_t index = 2; index + 1 < content.size(); index += 2)
        numbers.add(byteAt(content, index + low) + 256 * byteAt(content, index + 1 - low));
    return numbers.take();
}

} // namespace

// The rules of a profile work on a file's bytes, and only UTF-16 holds every text.
std::string bootName(const std::string& text) {
    const ProfileText profile(
        encodeText(text, TextEncoding::Utf16LittleEndian).value_or(std::string()));
    const std::string name = profile.value("Boot", "Name").value_or(std::string());
    return name.substr(0, name.find('\0'));
}

RobotNames namesByBytes(std::string_view content, TextEncoding encoding, MessageBoxes& boxes) {
    const std::string text = withNumbers(content, encoding);
    RobotNames names{bootName(text), {}};
    TextLines lines(text);
    for (const RobotRecord& robot : RobotFileReader(lines, boxes, {}).readList())
        if (robot.Name != endOfRobots)
            names.robots.push_back(robot.Name);
    return names;
}

} // namespace vantrel
