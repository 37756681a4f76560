#include "files/TransferTable.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr auto full = TransferTableFormat::Full;
constexpr auto shortForm = TransferTableFormat::Short;

struct CommentCase {
    const char* title;
    std::string_view line;
    std::string_view rest;
};

class CommentOfALine : public testing::TestWithParam<CommentCase> {};

TEST_P(CommentOfALine, IsCutOff) {
    EXPECT_EQ(withoutComment(GetParam().line), GetParam().rest);
}

INSTANTIATE_TEST_SUITE_P(Lines, CommentOfALine,
                         testing::Values(CommentCase{"Only", "; all a comment", ""},
                                         CommentCase{"Blank", " \t ", ""},
                                         CommentCase{"Empty", "", ""},
                                         CommentCase{"After", " *.JBI,1 ; jobs", "*.JBI,1"},
                                         CommentCase{"FirstOfTwo", "A;B;C", "A"},
                                         CommentCase{"None", "\t*.JBI,1\t", "*.JBI,1"}),
                         [](const auto& row) { return std::string(row.param.title); });

struct LineCase {
    const char* title;
    TransferTableFormat format;
    std::string_view line;
    std::string name;
    int download;
    int upload;
};

class WholeLine : public testing::TestWithParam<LineCase> {};

TEST_P(WholeLine, GivesARow) {
    const auto row = parseTransferRow(GetParam().line, GetParam().format);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->Name, GetParam().name);
    EXPECT_EQ(row->downloadMask, GetParam().download);
    EXPECT_EQ(row->uploadMask, GetParam().upload);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WholeLine,
    testing::Values(
        LineCase{"Usual", full, "*.JBI,1,1,1,1,1,1,1,1,1", "*.JBI", 63, 7},
        LineCase{"CommaAfterTheLast", full, "*.JBI,1,1,1,1,1,1,1,1,1,", "*.JBI", 63, 7},
        LineCase{"NameTrimmedAndUpperCased", full, " *.jbi ,0,0,0,0,0,0,0,0,0", "*.JBI", 0, 0},
        LineCase{"ColumnsAreBits", full, "A,0,1,0,1,0,1,1,0,1", "A", 2 + 8 + 32, 1 + 4},
        LineCase{"BlanksAroundFlags", full, "A, 1 ,0,0,0,0, 1 , 1 ,0, 1 ", "A", 33, 5},
        LineCase{"OtherNumbersAreNo", full, "A,2,-1,10,0,,x,3,2,1", "A", 0, 4},
        LineCase{"EmptyFlagsAreNo", full, "A,,,,,,,,,", "A", 0, 0},
        LineCase{"ThreeMore", full, "A,0,0,0,0,0,0,1,1,1,1,1,1", "A", 0, 63},
        LineCase{"ThreeMoreAndAComma", full, "A,0,0,0,0,0,0,0,0,0,1,0,1,", "A", 0, 8 + 32},
        LineCase{"ThreeMoreWithBlanks", full, "A,0,0,0,0,0,0,0,0,0, 0 , 1 , 0 ", "A", 0, 16},
        LineCase{"OneMoreIsIgnored", full, "A,0,0,0,0,0,0,1,0,0,1", "A", 0, 1},
        LineCase{"TwoMoreAreIgnored", full, "A,0,0,0,0,0,0,1,0,0,1,1", "A", 0, 1},
        LineCase{"FourMoreAreIgnored", full, "A,0,0,0,0,0,0,1,0,0,1,1,1,1", "A", 0, 1},
        LineCase{"WordsAreIgnored", full, "A,0,0,0,0,0,0,1,0,0,see, page, 1", "A", 0, 1},
        LineCase{"Short", shortForm, "*.DAT,1,0,1,0,1,1", "*.DAT", 5, 6},
        LineCase{"ShortWithCommaAfterTheLast", shortForm, "*.DAT,1,0,1,0,1,1,", "*.DAT", 5, 6},
        LineCase{"ShortHasNoMoreFlags", shortForm, "A,0,0,0,0,0,0,1,1,1", "A", 0, 0},
        LineCase{"JapaneseName", full, "溶接.dat,1,0,0,0,0,0,0,0,0", "溶接.DAT", 1, 0},
        LineCase{"NoName", full, ",1,0,0,0,0,0,0,0,0", "", 1, 0}),
    [](const auto& row) { return std::string(row.param.title); });

struct BrokenCase {
    const char* title;
    TransferTableFormat format;
    std::string_view line;
};

class BrokenLine : public testing::TestWithParam<BrokenCase> {};

TEST_P(BrokenLine, GivesNoRow) {
    EXPECT_FALSE(parseTransferRow(GetParam().line, GetParam().format));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BrokenLine,
    testing::Values(BrokenCase{"NameAlone", full, "*.JBI"},
                    BrokenCase{"NameAndComma", full, "*.JBI,"},
                    BrokenCase{"FewDownloadFlags", full, "*.JBI,1,1,1"},
                    BrokenCase{"DownloadFlagsNotEnded", full, "*.JBI,1,1,1,1,1,1"},
                    BrokenCase{"NoUploadFlags", full, "*.JBI,1,1,1,1,1,1,"},
                    BrokenCase{"OneUploadFlag", full, "*.JBI,1,1,1,1,1,1,1"},
                    BrokenCase{"TwoUploadFlags", full, "*.JBI,1,1,1,1,1,1,1,1"},
                    BrokenCase{"AShortLineInAFullTable", full, "*.JBI,1,1,1,1,1,1"},
                    BrokenCase{"ShortFewDownloadFlags", shortForm, "*.JBI,1,1"},
                    BrokenCase{"ShortTwoUploadFlags", shortForm, "*.JBI,1,1,1,1,1"},
                    BrokenCase{"NulBytes", full, std::string_view("\0\0\0", 3)}),
    [](const auto& row) { return std::string(row.param.title); });

} // namespace
} // namespace vantrel
