#include "simulator/VariableStore.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

class VariableStoreTest : public testing::Test {
  protected:
    std::string saved(const std::string& content) {
        folder.write("variables.txt", content);
        VariableStore store(folder.path("variables.txt"));
        EXPECT_TRUE(store.load());
        EXPECT_TRUE(store.save());
        return folder.read("variables.txt");
    }

    tests::TemporaryFolder folder;
};

TEST_F(VariableStoreTest, AMissingFileHoldsZeros) {
    VariableStore store(folder.path("variables.txt"));

    EXPECT_TRUE(store.load());
    EXPECT_EQ(store.get(3, 12), VariableValues{});
}

TEST_F(VariableStoreTest, WritesALinePerVariableInOrder) {
    VariableStore store(folder.path("variables.txt"));
    store.put(4, 1, {412.5, 0, 930, 180, 0, -90, 0, 0, 0.1});
    store.put(0, 5, {12});
    store.put(0, 123, {7});
    store.put(6, 0, {1});
    ASSERT_TRUE(store.save());

    EXPECT_EQ(folder.read("variables.txt"), "B005=12\r\nB123=7\r\n"
                                            "P001=412.5,0,930,180,0,-90,0,0,0.1\r\n"
                                            "EX000=1,0,0,0,0,0,0,0,0\r\n");
}

TEST_F(VariableStoreTest, ReadsBackWhatItWrote) {
    const VariableValues values{0.1, -1.0 / 3, 1e-9, 9999999.999, 5, 6, 7, 8, 9};
    VariableStore writer(folder.path("variables.txt"));
    writer.put(5, 3, values);
    ASSERT_TRUE(writer.save());

    VariableStore reader(folder.path("variables.txt"));
    ASSERT_TRUE(reader.load());
    EXPECT_EQ(reader.get(5, 3), values);
    EXPECT_EQ(reader.get(4, 3), VariableValues{});
}

TEST_F(VariableStoreTest, KeepsOnlyTheValuesOfItsKind) {
    VariableStore store(folder.path("variables.txt"));
    store.put(1, 2, {-3, 4, 5});

    EXPECT_EQ(store.get(1, 2), VariableValues{-3});
}

TEST_F(VariableStoreTest, OtherLinesStayAndMoveToTheTop) {
    EXPECT_EQ(saved("B001=1\r\n; note\r\nQ001=1\r\n  B002=2  \r\n"),
              "; note\r\nQ001=1\r\nB001=1\r\nB002=2\r\n");
}

TEST_F(VariableStoreTest, LinesThatAreNoVariablesAreLeftAlone) {
    const std::string lines = "B=1\r\nB001\r\nB001=\r\nB001=x\r\nB001=1,2\r\nP001=1\r\n"
                              "B9999=1\r\nB-1=1\r\nb001=1\r\n=\r\n";
    EXPECT_EQ(saved(lines), lines);
}

TEST_F(VariableStoreTest, TakesGarbage) {
    const std::string garbage = std::string("\0\xff\xfe=,", 5) + std::string(10'000'000, ',');
    EXPECT_EQ(saved(garbage), garbage + "\r\n");
}

TEST_F(VariableStoreTest, RefusesWhatIsNoPlainFile) {
    folder.makeFolder("variables.txt");
    VariableStore store(folder.path("variables.txt"));

    EXPECT_FALSE(store.load());
    EXPECT_FALSE(store.save());
}

} // namespace
} // namespace vantrel::simulator
