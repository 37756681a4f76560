#include "history/StoredNames.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(StoredNamesTest, PlainNamesStayAsTheyAre) {
    for (const std::string name : {"WELD.JBI", "a b.DAT", "溶接１.JBI", "X-1_(2)&'.CND",
                                   "COMET.JBI", "CONE", "LPT.JBI", "A..B"})
        EXPECT_EQ(storedName(name), name);
}

TEST(StoredNamesTest, WhatSomeDiskOrGitCannotHoldIsSpelledOut) {
    EXPECT_EQ(storedName("A:B.JBI"), "A%3AB.JBI");
    EXPECT_EQ(storedName("100%"), "100%25");
    EXPECT_EQ(storedName("..\\..\\X"), "%2E.%5C..%5CX");
    EXPECT_EQ(storedName(".."), "%2E%2E");
    EXPECT_EQ(storedName("."), "%2E");
    EXPECT_EQ(storedName(".git"), "%2Egit");
    EXPECT_EQ(storedName("GIT~1"), "GIT%7E1");
    EXPECT_EQ(storedName("END."), "END%2E");
    EXPECT_EQ(storedName("END "), "END%20");
    EXPECT_EQ(storedName("A\tB\x7F"), "A%09B%7F");
    EXPECT_EQ(storedName("con.jbi"), "%63on.jbi");
    EXPECT_EQ(storedName("Com7"), "%43om7");
    EXPECT_EQ(storedName("LPT\u00B2.X"), "%4CPT\u00B2.X");
    EXPECT_EQ(storedName("\x83\x5C.JBI"), "%83%5C.JBI");
}

TEST(StoredNamesTest, EveryNameComesBackAsItWas) {
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    for (const std::string& name :
         std::vector<std::string>{everyByte, "%41", "%", "%%41%4", "CON", ".gitmodules", "溶接.JBI",
                                  " ", ". .", "a\u200C.JBI"})
        EXPECT_EQ(nameFromStored(storedName(name)), name);
}

TEST(StoredNamesTest, APercentSignThatIsNotOursStays) {
    EXPECT_EQ(nameFromStored("50% DONE%4"), "50% DONE%4");
    EXPECT_EQ(nameFromStored("%+1%-1%zz"), "%+1%-1%zz");
}

TEST(StoredPlacesTest, NamesThatDifferInLetterCaseOnlyGetPlacesThatDifferOtherwise) {
    StoredPlaces places({});
    EXPECT_EQ(places.placeFor("Weld.JBI"), "Weld.JBI");
    EXPECT_EQ(places.placeFor("WELD.JBI"), "%57ELD.JBI");
    EXPECT_EQ(places.placeFor("weld.JBI"), "%77eld.JBI");
    EXPECT_EQ(places.placeFor("WELd.JBI"), "%57%45Ld.JBI");
    EXPECT_EQ(places.placeFor("WELD.JBI"), "%57ELD.JBI");
}

TEST(StoredPlacesTest, ANameKeepsThePlaceThatItHas) {
    StoredPlaces places({"%57ELD.JBI", "Weld.JBI"});
    EXPECT_EQ(places.placeFor("WELD.JBI"), "%57ELD.JBI");
    EXPECT_EQ(StoredPlaces({"%57ELD.JBI"}).placeFor("WELD.JBI"), "%57ELD.JBI");
}

TEST(StoredPlacesTest, WhatIsTooLongForADiskHasNone) {
    StoredPlaces places({});
    EXPECT_EQ(places.placeFor(std::string(StoredPlaces::longest, 'A')),
              std::string(StoredPlaces::longest, 'A'));
    EXPECT_EQ(places.placeFor(std::string(StoredPlaces::longest + 1, 'B')), "");
    EXPECT_EQ(places.placeFor(std::string(StoredPlaces::longest / 2, ':')), "");
    EXPECT_EQ(places.placeFor(""), "");
}

} // namespace
} // namespace vantrel
