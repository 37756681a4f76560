#include "app/settings/SerialDraft.h"

#include "base/Connection.h"
#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;
using Entry = std::optional<std::size_t>;

struct StoredRow : NamedRow {
    std::int32_t Baudrate;
    std::int16_t Parity, DataLen, StopBit;
    Entry baudrate, parity, dataLen, stopBit; ///< the entries that are chosen for them
    std::int32_t baudrateAfter;               ///< after OK without an edit
};

class StoredSerialTest : public testing::TestWithParam<StoredRow> {
  protected:
    static SerialLine stored() {
        SerialLine state;
        state.Baudrate = GetParam().Baudrate;
        state.Parity = GetParam().Parity;
        state.DataLen = GetParam().DataLen;
        state.StopBit = GetParam().StopBit;
        return state;
    }
};

TEST_P(StoredSerialTest, ChoosesTheEntryThatShowsIt) {
    const SerialDraft draft(stored());
    EXPECT_EQ(draft.chosen(SerialList::Baudrate), GetParam().baudrate);
    EXPECT_EQ(draft.chosen(SerialList::Parity), GetParam().parity);
    EXPECT_EQ(draft.chosen(SerialList::DataLen), GetParam().dataLen);
    EXPECT_EQ(draft.chosen(SerialList::StopBit), GetParam().stopBit);
    EXPECT_FALSE(draft.isEdited());
}

TEST_P(StoredSerialTest, IsLeftAloneWhereNoEntryIsChosen) {
    const SerialDraft draft(stored());
    EXPECT_EQ(draft.line().Baudrate, GetParam().baudrateAfter);
    EXPECT_EQ(draft.line().Parity, GetParam().Parity);
    EXPECT_EQ(draft.line().DataLen, GetParam().DataLen);
    EXPECT_EQ(draft.line().StopBit, GetParam().StopBit);
}

INSTANTIATE_TEST_SUITE_P(
    Values, StoredSerialTest,
    testing::Values(StoredRow{{"Defaults"}, 9600, 2, 8, 0, 3, 2, 1, 0, 9600},
                    StoredRow{{"Slowest"}, 1200, 0, 7, 1, 0, 0, 0, 1, 1200},
                    StoredRow{{"Second"}, 2400, 1, 7, 2, 1, 1, 0, 2, 2400},
                    StoredRow{{"Third"}, 4800, 1, 8, 2, 2, 1, 1, 2, 4800},
                    StoredRow{{"Fastest"}, 19200, 1, 8, 2, 4, 1, 1, 2, 19200},
                    StoredRow{{"NotOffered"}, 38400, 3, 9, 3, 3, {}, {}, {}, 9600},
                    StoredRow{{"BelowTheLists"}, 0, -1, 6, -1, 3, {}, {}, {}, 9600}),
    rowName);

struct PortRow : NamedRow {
    std::int16_t stored;
    int set;
    int port;
    bool edited;
};

class PortTest : public testing::TestWithParam<PortRow> {};

TEST_P(PortTest, StaysInItsRangeOnceItIsSet) {
    SerialLine state;
    state.Port = GetParam().stored;
    SerialDraft draft(state);
    EXPECT_EQ(draft.port(), GetParam().stored);
    draft.setPort(GetParam().set);
    EXPECT_EQ(draft.port(), GetParam().port);
    EXPECT_EQ(draft.isEdited(), GetParam().edited);
}

INSTANTIATE_TEST_SUITE_P(Ports, PortTest,
                         testing::Values(PortRow{{"Up"}, 1, 2, 2, true},
                                         PortRow{{"Same"}, 5, 5, 5, false},
                                         PortRow{{"Lowest"}, 2, 1, 1, true},
                                         PortRow{{"BelowTheLowest"}, 1, 0, 1, false},
                                         PortRow{{"Highest"}, 255, 256, 256, true},
                                         PortRow{{"AboveTheHighest"}, 256, 257, 256, false},
                                         PortRow{{"StoredAbove"}, 300, 299, 256, true},
                                         PortRow{{"StoredBelow"}, -3, -2, 1, true}),
                         rowName);

TEST(SerialDraftTest, AChosenEntryIsItsValue) {
    SerialDraft draft{SerialLine()};
    draft.choose(SerialList::Baudrate, 4);
    draft.choose(SerialList::Parity, 0);
    draft.choose(SerialList::DataLen, 0);
    draft.choose(SerialList::StopBit, 2);
    EXPECT_EQ(draft.line().Baudrate, 19200);
    EXPECT_EQ(draft.line().Parity, 0);
    EXPECT_EQ(draft.line().DataLen, 7);
    EXPECT_EQ(draft.line().StopBit, 2);
    EXPECT_TRUE(draft.isEdited());
}

TEST(SerialDraftTest, TheEntryThatIsChosenAlreadyOrNoneAtAllIsNoEdit) {
    SerialDraft draft{SerialLine()};
    draft.choose(SerialList::Parity, 2);
    draft.choose(SerialList::Parity, 3);
    EXPECT_EQ(draft.line().Parity, 2);
    EXPECT_FALSE(draft.isEdited());
}

TEST(SerialDraftTest, TheDefaultsAreRestored) {
    SerialLine state;
    state.Port = 300;
    state.Baudrate = 1200;
    state.Parity = 9;
    state.DataLen = 5;
    state.StopBit = 2;
    SerialDraft draft(state);
    draft.restoreDefaults();
    EXPECT_EQ(draft.port(), 1);
    EXPECT_EQ(draft.line().Baudrate, 9600);
    EXPECT_EQ(draft.line().Parity, 2);
    EXPECT_EQ(draft.line().DataLen, 8);
    EXPECT_EQ(draft.line().StopBit, 0);
    EXPECT_TRUE(draft.isEdited());
}

TEST(SerialDraftTest, RestoringTheDefaultsIsAnEditInAnyCase) {
    SerialDraft draft{SerialLine()};
    draft.restoreDefaults();
    EXPECT_TRUE(draft.isEdited());
    draft.noteApplied();
    EXPECT_FALSE(draft.isEdited());
}

TEST(SerialChoicesTest, AreTheOnesThatTheListsShow) {
    const auto texts = [](SerialList list) {
        std::string all;
        for (const auto entry : serialChoices(list))
            all += std::string(entry) + " ";
        return all;
    };
    EXPECT_EQ(texts(SerialList::Baudrate), "1200 2400 4800 9600 19200 ");
    EXPECT_EQ(texts(SerialList::Parity), "NONE ODD EVEN ");
    EXPECT_EQ(texts(SerialList::DataLen), "7 8 ");
    EXPECT_EQ(texts(SerialList::StopBit), "1 1.5 2 ");
}

} // namespace
} // namespace vantrel
