#include "platform/LanguageNames.h"

#include "support/NamedRow.h"

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

struct LanguageRow : NamedRow {
    std::string locale;
    const char* language;
};

const LanguageRow rows[] = {
    {"Japan", "ja_JP.UTF-8", "Japanese"},
    {"JapanInShiftJis", "ja_JP.SJIS", "Japanese"},
    {"LanguageAlone", "ja", "Japanese"},
    {"LongName", "japanese.euc", "Japanese"},
    {"ThreeLetters", "jpn", "Japanese"},
    {"UpperCase", "JA_jp", "Japanese"},
    {"WithHyphen", "ja-JP", "Japanese"},
    {"UnitedStates", "en_US.UTF-8", "English"},
    {"Britain", "en_GB", "English"},
    {"German", "de_DE@euro", "German"},
    {"Chinese", "zh_TW.UTF-8", "Chinese"},
    {"Norwegian", "nb_NO.UTF-8", "Norwegian"},
    {"Plain", "C", "English"},
    {"PlainWithEncoding", "C.UTF-8", "English"},
    {"Posix", "POSIX", "English"},
    {"Empty", "", "English"},
    {"Unknown", "xx_XX", "English"},
    {"Garbage", std::string("\xFF\0_", 3), "English"},
};

class LanguageName : public testing::TestWithParam<LanguageRow> {};

TEST_P(LanguageName, IsTheEnglishOne) {
    EXPECT_EQ(languageNameOfLocale(GetParam().locale), GetParam().language);
}

INSTANTIATE_TEST_SUITE_P(Rows, LanguageName, testing::ValuesIn(rows), rowName);

} // namespace
} // namespace vantrel
