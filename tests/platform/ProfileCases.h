#pragma once

#include "support/NamedRow.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel::tests {

/// How profile files behave, as data, so that every implementation runs through the same cases.
/// File contents are bytes in code page 932, or in UTF-16 with its mark; other texts are UTF-8.

inline constexpr std::string_view kanji = "\u8868"; ///< its second byte in 932 is "\"
inline constexpr std::string_view kanjiBytes = "\x95\x5C";

/// ASCII as little-endian UTF-16 with its mark.
inline std::string wide(std::string_view ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char character : ascii)
        bytes.append({character, '\0'});
    return bytes;
}

struct ProfileReadCase : NamedRow {
    std::optional<std::string> file; ///< nothing: there is no file
    std::string section, key, defaultValue;
    std::size_t bufferSize;
    std::string expected;
};

inline const ProfileReadCase profileReadCases[] = {
    {"PlainValue", "[S]\r\nk=v\r\n", "S", "k", "d", 128, "v"},
    {"SectionInAnyLetterCase", "[Section]\r\nk=v\r\n", "sECTION", "k", "d", 128, "v"},
    {"KeyInAnyLetterCase", "[S]\r\nKey=v\r\n", "S", "kEY", "d", 128, "v"},
    {"JapaneseKeyInAnyLetterCase", "[S]\r\n\x82\x8B=v\r\n", "S", "\uFF2B", "d", 128, "v"},
    {"ValueKeepsItsLetterCase", "[S]\r\nk=VaLuE\r\n", "S", "k", "d", 128, "VaLuE"},

    {"MissingFile", std::nullopt, "S", "k", "d", 128, "d"},
    {"EmptyFile", "", "S", "k", "d", 128, "d"},
    {"MissingSection", "[T]\r\nk=v\r\n", "S", "k", "d", 128, "d"},
    {"MissingKey", "[S]\r\nl=v\r\n", "S", "k", "d", 128, "d"},
    {"KeyOfAnotherSection", "[S]\r\nl=v\r\n[T]\r\nk=v\r\n", "S", "k", "d", 128, "d"},

    {"DefaultLosesTrailingBlanks", std::nullopt, "S", "k", "  a b  ", 128, "  a b"},
    {"DefaultOfBlanksIsEmpty", std::nullopt, "S", "k", "   ", 128, ""},
    {"DefaultIsCutToTheBuffer", std::nullopt, "S", "k", "abcdef", 4, "abc"},

    {"ValueLosesOuterBlanks", "[S]\r\nk=  a b  \r\n", "S", "k", "d", 128, "a b"},
    {"ValueLosesOuterTabs", "[S]\r\nk=\t a\tb \t\r\n", "S", "k", "d", 128, "a\tb"},

    {"DoubleQuotesAreStripped", "[S]\r\nk=\"a\"\r\n", "S", "k", "d", 128, "a"},
    {"SingleQuotesAreStripped", "[S]\r\nk='a'\r\n", "S", "k", "d", 128, "a"},
    {"OneLayerOfQuotesOnly", "[S]\r\nk=\"'a'\"\r\n", "S", "k", "d", 128, "'a'"},
    {"UnequalQuotesStay", "[S]\r\nk=\"a'\r\n", "S", "k", "d", 128, "\"a'"},
    {"OpeningQuoteAloneStays", "[S]\r\nk=\"a\r\n", "S", "k", "d", 128, "\"a"},
    {"ClosingQuoteAloneStays", "[S]\r\nk=a\"\r\n", "S", "k", "d", 128, "a\""},
    {"OneQuoteIsNoPair", "[S]\r\nk=\"\r\n", "S", "k", "d", 128, "\""},
    {"BlanksInsideQuotesStay", "[S]\r\nk= \" a \" \r\n", "S", "k", "d", 128, " a "},
    {"EmptyQuotes", "[S]\r\nk=\"\"\r\n", "S", "k", "d", 128, ""},

    {"ParametersLoseOuterBlanks", "[S]\r\nk=v\r\n", " S ", "  k ", "d", 128, "v"},
    {"ParametersKeepTabs", "[S]\r\nk=v\r\n", "S", "\tk", "d", 128, "d"},
    {"SectionParameterKeepsTabs", "[S]\r\nk=v\r\n", "S\t", "k", "d", 128, "d"},

    {"BlanksAroundTheKey", "[S]\r\n  k  =v\r\n", "S", "k", "d", 128, "v"},
    {"BlanksBeforeTheHeader", "[T]\r\n  [S]\r\nk=v\r\n", "S", "k", "d", 128, "v"},
    {"BlanksInsideTheBrackets", "[  S  ]\r\nk=v\r\n", "S", "k", "d", 128, "v"},
    {"BlankInsideTheKeyCounts", "[S]\r\na b=v\r\n", "S", "ab", "d", 128, "d"},

    {"HeaderEndsAtItsFirstBracket", "[S]x]\r\nk=v\r\n", "S", "k", "d", 128, "v"},
    {"TextBehindTheHeaderIsIgnored", "[S] k=w\r\nk=v\r\n", "S", "k", "d", 128, "v"},
    {"HeaderWithoutBracketRunsToTheLineEnd", "[S x\r\nk=v\r\n", "S x", "k", "d", 128, "v"},
    {"BracketInsideACharacterEndsNoHeader", "[\x83\x5D]\r\nk=v\r\n", "\u30BE", "k", "d", 128, "v"},

    {"LinesBeforeTheFirstSectionAreUnreachable", "k=v\r\n[S]\r\n", "", "k", "d", 128, "d"},

    {"FirstOfEqualKeysWins", "[S]\r\nk=1\r\nK=2\r\n", "S", "k", "d", 128, "1"},
    {"FirstOfEqualSectionsOnly", "[S]\r\na=1\r\n[s]\r\nk=2\r\n", "S", "k", "d", 128, "d"},

    {"SemicolonStartsAComment", "[S]\r\n;k=1\r\nk=2\r\n", "S", "k", "d", 128, "2"},
    {"CommentMayBeIndented", "[S]\r\n  ;k=1\r\n", "S", ";k", "d", 128, "d"},
    {"CommentedHeaderIsNone", "[S]\r\n;[T]\r\nk=v\r\n", "S", "k", "d", 128, "v"},
    {"SemicolonInAValueIsData", "[S]\r\nk=a;b ; c\r\n", "S", "k", "d", 128, "a;b ; c"},
    {"HashIsNoComment", "[S]\r\n#k=v\r\n", "S", "#k", "d", 128, "v"},

    {"LineWithoutEqualsIsNoKey", "[S]\r\nk\r\n", "S", "k", "d", 128, "d"},
    {"EmptyValueIsNotTheDefault", "[S]\r\nk=\r\n", "S", "k", "d", 128, ""},
    {"FirstEqualsDivides", "[S]\r\nk=a=b\r\n", "S", "k", "d", 128, "a=b"},

    {"UnixLineEnds", "[S]\nk=v\nl=w\n", "S", "l", "d", 128, "w"},
    {"OldMacLineEnds", "[S]\rk=v\rl=w\r", "S", "l", "d", 128, "w"},
    {"LastLineWithoutEnd", "[S]\r\nk=v", "S", "k", "d", 128, "v"},

    {"BufferTakesOneLess", "[S]\r\nk=abcdef\r\n", "S", "k", "d", 6, "abcde"},
    {"BufferJustLargeEnough", "[S]\r\nk=abcdef\r\n", "S", "k", "d", 7, "abcdef"},
    {"BufferOfOne", "[S]\r\nk=abc\r\n", "S", "k", "d", 1, ""},
    {"BufferNeverHoldsHalfACharacter", "[S]\r\nk=a\x95\x5C\r\n", "S", "k", "d", 3, "a"},
    {"BufferHoldsTheWholeCharacter", "[S]\r\nk=a\x95\x5C\r\n", "S", "k", "d", 4, "a\u8868"},
    {"HalfWidthKanaTakesOneByte", "[S]\r\nk=\xB1\xB2\xB3\r\n", "S", "k", "d", 3, "\uFF71\uFF72"},

    {"ValueInTheCodePage", "[S]\r\nk=C:\\\x95\x5C\\x\r\n", "S", "k", "d", 128, "C:\\\u8868\\x"},
    {"WideFile", wide("[S]\r\nk=v\r\n"), "S", "k", "d", 128, "v"},
    {"WideFileWithJapaneseValue", wide("[S]\r\nk=") + "\x68\x88", "S", "k", "d", 128, "\u8868"},
    {"Utf8MarkHidesASectionOnTheFirstLine", "\xEF\xBB\xBF[S]\r\nk=v\r\n", "S", "k", "d", 128, "d"},
    {"Utf8MarkHidesNoLaterSection", "\xEF\xBB\xBF;\r\n[S]\r\nk=v\r\n", "S", "k", "d", 128, "v"},
};

struct ProfileIntegerCase : NamedRow {
    std::optional<std::string> file;
    std::int32_t defaultValue, expected;
};

/// All of section "S", key "k".
inline const ProfileIntegerCase profileIntegerCases[] = {
    {"MissingFile", std::nullopt, 7, 7},
    {"MissingKey", "[S]\r\n", -7, -7},
    {"Plain", "[S]\r\nk=42\r\n", 7, 42},
    {"TextBehindIsIgnored", "[S]\r\nk=42A9\r\n", 7, 42},
    {"TextIsZero", "[S]\r\nk=B42\r\n", 7, 0},
    {"Minus", "[S]\r\nk=-1\r\n", 7, -1},
    {"Plus", "[S]\r\nk=+1\r\n", 7, 1},
    {"QuotedNumber", "[S]\r\nk=\"5\"\r\n", 7, 5},
    {"FractionIsCutOff", "[S]\r\nk=9600.9\r\n", 7, 9600},
    {"Highest", "[S]\r\nk=2147483647\r\n", 7, std::numeric_limits<std::int32_t>::max()},
    {"WrapsToNegative", "[S]\r\nk=2147483648\r\n", 7, std::numeric_limits<std::int32_t>::min()},
    {"WrapsAround", "[S]\r\nk=4294967297\r\n", 7, 1},
};

struct ProfileWriteCase : NamedRow {
    std::optional<std::string> before;
    std::string section, key, value;
    std::string after;
};

inline const ProfileWriteCase profileWriteCases[] = {
    {"NewFile", std::nullopt, "S", "k", "v", "[S]\r\nk=v\r\n"},
    {"EmptyFile", "", "S", "k", "v", "[S]\r\nk=v\r\n"},

    {"ValueIsWrittenAsGiven", std::nullopt, "S", "k", " \"v\" ", "[S]\r\nk= \"v\" \r\n"},
    {"EmptyValue", std::nullopt, "S", "k", "", "[S]\r\nk=\r\n"},
    {"SectionAndKeyLoseOuterBlanks", std::nullopt, " S ", " k ", "v", "[S]\r\nk=v\r\n"},

    {"ValueIsChangedInPlace", "[S]\r\na=1\r\nk=old\r\nb=2\r\n", "S", "k", "new",
     "[S]\r\na=1\r\nk=new\r\nb=2\r\n"},
    {"KeyKeepsItsSpelling", "[S]\r\nKey=1\r\n", "S", "kEY", "2", "[S]\r\nKey=2\r\n"},
    {"SectionKeepsItsSpelling", "[Sect]\r\nk=1\r\n", "sECT", "k", "2", "[Sect]\r\nk=2\r\n"},
    {"FirstOfEqualKeysIsChanged", "[S]\r\nk=1\r\nk=2\r\n", "S", "k", "3", "[S]\r\nk=3\r\nk=2\r\n"},
    {"LastLineIsChangedWithoutAnEnd", "[S]\r\nk=1", "S", "k", "2", "[S]\r\nk=2"},

    {"NewKeyGoesBehindTheSectionsKeys", "[S]\r\na=1\r\n[T]\r\nb=2\r\n", "S", "k", "v",
     "[S]\r\na=1\r\nk=v\r\n[T]\r\nb=2\r\n"},
    {"NewKeyGoesBeforeTheBlankLine", "[S]\r\na=1\r\n\r\n[T]\r\n", "S", "k", "v",
     "[S]\r\na=1\r\nk=v\r\n\r\n[T]\r\n"},
    {"NewKeyOfAnEmptySection", "[S]\r\n[T]\r\nb=2\r\n", "S", "k", "v",
     "[S]\r\nk=v\r\n[T]\r\nb=2\r\n"},
    {"NewKeyGoesIntoTheFirstOfEqualSections", "[S]\r\na=1\r\n[S]\r\nk=2\r\n", "S", "k", "v",
     "[S]\r\na=1\r\nk=v\r\n[S]\r\nk=2\r\n"},
    {"NewSectionGoesToTheEnd", "[T]\r\nb=2\r\n", "S", "k", "v", "[T]\r\nb=2\r\n[S]\r\nk=v\r\n"},

    {"CommentsAndBlankLinesStay", "; c\r\n\r\n[S]\r\n;k=0\r\n\r\nk=1\r\n  \r\n; e\r\n", "S", "k",
     "2", "; c\r\n\r\n[S]\r\n;k=0\r\n\r\nk=2\r\n  \r\n; e\r\n"},
    {"BlanksOfOtherLinesStay", "[ S ]\r\n a = 1 \r\nk=1\r\n", "S", "k", "2",
     "[ S ]\r\n a = 1 \r\nk=2\r\n"},
    {"LineEndsStay", "[S]\na=1\nk=1\rb=2\n", "S", "k", "2", "[S]\na=1\nk=2\rb=2\n"},
    {"BytesWithoutMeaningStay", "[S]\r\nx=\xFF\x81\r\nk=1\r\n", "S", "k", "2",
     "[S]\r\nx=\xFF\x81\r\nk=2\r\n"},

    {"OpenLastLineIsClosedBeforeAKey", "[S]\r\na=1", "S", "k", "v", "[S]\r\na=1\r\nk=v\r\n"},
    {"OpenLastLineIsClosedBeforeASection", "[T]\r\nb=2", "S", "k", "v",
     "[T]\r\nb=2\r\n[S]\r\nk=v\r\n"},
    {"OpenHeaderIsClosedBeforeAKey", "[S]", "S", "k", "v", "[S]\r\nk=v\r\n"},

    {"JapaneseGoesIntoTheCodePage", "[S]\r\nk=1\r\n", "S", "k", "C:\\\u8868",
     "[S]\r\nk=C:\\\x95\x5C\r\n"},
    {"WideFileStaysWide", wide("[S]\r\nk=1\r\n"), "S", "k", "23", wide("[S]\r\nk=23\r\n")},
    {"WideFileTakesANewKey", wide("[S]\r\na=1"), "S", "k", "v", wide("[S]\r\na=1\r\nk=v\r\n")},
    {"WideFileTakesAnyCharacter", wide("[S]\r\nk=1"), "S", "k", "\u20AC",
     wide("[S]\r\nk=") + "\xAC\x20"},
};

/// A case in which the functions that Wine puts in the system's place do otherwise, and what they
/// do.
struct WineDifference {
    std::string_view name, reason;
};

inline constexpr WineDifference differsUnderWine[] = {
    {"ParametersKeepTabs", "strips tabs from names that are asked for"},
    {"SectionParameterKeepsTabs", "strips tabs from names that are asked for"},
    {"HeaderEndsAtItsFirstBracket", "takes a header's last bracket for its end"},
    {"HeaderWithoutBracketRunsToTheLineEnd", "takes no header without its bracket"},
    {"Utf8MarkHidesASectionOnTheFirstLine", "knows the mark of UTF-8"},
    {"NewKeyGoesBeforeTheBlankLine", "writes a new key behind the blank line"},
    {"CommentsAndBlankLinesStay", "writes every line anew"},
    {"BlanksOfOtherLinesStay", "writes every line anew"},
    {"ValueIsWrittenAsGiven", "writes every line anew, with what it made of each byte"},
    {"LastLineIsChangedWithoutAnEnd", "ends every line, the last one too"},
    {"LineEndsStay", "ends every line with CR LF"},
    {"BytesWithoutMeaningStay", "writes every line anew, with what it made of each byte"},
    {"WideFileTakesAnyCharacter", "writes every line anew, with what it made of each byte"},
    {"LinesBeforeTheFirstSectionAreUnreachable", "reads on where the system stops"},
    {"CommentMayBeIndented", "reads on where the system stops"},
    {"JapaneseKeyInAnyLetterCase", "knows the letter case of ASCII only"},
};

} // namespace vantrel::tests
