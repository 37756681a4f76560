#include "base/PathRules.h"
#include "support/NamedRow.h"

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

struct PlainNameRow : NamedRow {
    std::string text;
    bool isPlain;
};

const PlainNameRow rows[] = {
    {"Job", "MAIN.JBI", true},
    {"Japanese", "\u30B8\u30E7\u30D6.JBI", true},
    {"SeveralPoints", "A.B.JBI", true},
    {"PointFirst", ".hidden", true},
    {"BlankInside", "MAIN 2.JBI", true},
    {"BlankFirst", " MAIN", true},
    {"LongestPossible", std::string(255, 'A'), true},
    {"ThreePoints", "..a", true},

    {"Empty", "", false},
    {"TooLong", std::string(256, 'A'), false},
    {"Itself", ".", false},
    {"Above", "..", false},
    {"OnlyPoints", "...", false},
    {"Slash", "a/b", false},
    {"Backslash", "a\\b", false},
    {"UpAndDown", "..\\a", false},
    {"DriveColon", "C:a", false},
    {"StreamColon", "a.txt:b", false},
    {"Star", "*.JBI", false},
    {"QuestionMark", "A?.JBI", false},
    {"Quote", "A\"B", false},
    {"Less", "A<B", false},
    {"Greater", "A>B", false},
    {"Bar", "A|B", false},
    {"Nul", std::string("A\0B", 3), false},
    {"LineEnd", "A\nB", false},
    {"Delete", "A\x7F", false},
    {"SecondControlRange", "A\u0085", false},
    {"PointLast", "MAIN.", false},
    {"BlankLast", "MAIN ", false},
    {"NoUtf8", "A\xFF", false},

    {"Device", "NUL", false},
    {"DeviceInLowerCase", "con", false},
    {"DeviceWithEnding", "Aux.JBI", false},
    {"DeviceWithBlankBeforeItsPoint", "PRN .JBI", false},
    {"SerialPort", "COM1", false},
    {"SerialPortWithSuperscript", "COM\u00B2.JBI", false},
    {"PrinterPort", "lpt9.dat", false},
    {"Console", "CONIN$", false},
    {"PortWithoutNumber", "COM.JBI", true},
    {"PortWithTwoDigits", "COM10.JBI", true},
    {"DeviceAsAPart", "NULL.JBI", true},
};

class PlainName : public testing::TestWithParam<PlainNameRow> {};

TEST_P(PlainName, IsOneComponentOnBothSystems) {
    EXPECT_EQ(PathRules::isPlainName(GetParam().text), GetParam().isPlain);
}

INSTANTIATE_TEST_SUITE_P(Rows, PlainName, testing::ValuesIn(rows), rowName);

} // namespace
} // namespace vantrel
