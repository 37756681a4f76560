#include "simulator/ControllerFileName.h"

#include "simulator/ResultCodes.h"

#include <ostream>

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

struct NameCase {
    const char* name;
    std::string given;
    std::string stored; ///< empty: refused
    std::int16_t code = code::done;
};

void PrintTo(const NameCase& each, std::ostream* out) {
    *out << each.given.substr(0, 60);
}

class ControllerFileNameCase : public testing::TestWithParam<NameCase> {};

TEST_P(ControllerFileNameCase, IsStoredInOneFormOrRefused) {
    const auto name = controllerFileName(GetParam().given);

    ASSERT_EQ(static_cast<bool>(name), !GetParam().stored.empty());
    if (name)
        EXPECT_EQ(name->stored(), GetParam().stored);
    else
        EXPECT_EQ(name.code(), GetParam().code);
}

const NameCase nameCases[] = {
    {"Job", "WELD1.JBI", "WELD1.JBI"},
    {"LowerCase", "weld1.jbi", "WELD1.JBI"},
    {"RelatedJobsAreTheJob", "WELD1.JBR", "WELD1.JBI"},
    {"Condition", "tool.cnd", "TOOL.CND"},
    {"List", "ALARM.LST", "ALARM.LST"},
    {"TwoPoints", "a.b.dat", "A.B.DAT"},
    {"GreekKeepsItsCase", "αβweld.JBI", "αβWELD.JBI"},
    {"Japanese", "ソ表.JBI", "ソ表.JBI"},
    {"OtherKind", "notes.txt", "", code::unknownFileKind},
    {"Variables", "VARIABLES.TXT", "", code::unknownFileKind},
    {"NoExtension", "WELD1", "", code::unknownFileKind},
    {"NoBase", ".JBI", "", code::nameInvalid},
    {"BaseAbove", "...JBI", "", code::nameInvalid},
    {"BaseEndsInBlank", "A .JBI", "", code::nameInvalid},
    {"Empty", "", "", code::nameInvalid},
    {"Above", "../WELD1.JBI", "", code::nameInvalid},
    {"Below", "a/WELD1.JBI", "", code::nameInvalid},
    {"Backslash", "a\\WELD1.JBI", "", code::nameInvalid},
    {"Stream", "WELD1.JBI:x.DAT", "", code::nameInvalid},
    {"Wildcard", "*.JBI", "", code::nameInvalid},
    {"Device", "CON.JBI", "", code::nameInvalid},
    {"NotInTheCodePage", "한국.JBI", "", code::nameInvalid},
    {"Nul", std::string("A\0.JBI", 6), "", code::nameInvalid},
    {"TooLong", std::string(300, 'A') + ".JBI", "", code::nameInvalid},
};

INSTANTIATE_TEST_SUITE_P(Names, ControllerFileNameCase, testing::ValuesIn(nameCases),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
} // namespace vantrel::simulator
