#include "link/JobLists.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(EntryListTest, AnIndexOutsideGivesAnEmptyText) {
    EntryList list;
    EXPECT_EQ(list.at(0), "");
    list.add("A");
    EXPECT_EQ(list.at(-1), "");
    EXPECT_EQ(list.at(0), "A");
    EXPECT_EQ(list.at(1), "");
}

TEST(EntryListTest, RemovingAndReplacingOutsideDoNothing) {
    EntryList list;
    list.add("A");
    list.add("B");
    list.remove(-1);
    list.remove(2);
    list.replace(2, "C");
    EXPECT_EQ(list.count(), 2);
    list.remove(0);
    list.replace(0, "C");
    EXPECT_EQ(list.at(0), "C");
    list.clear();
    EXPECT_EQ(list.count(), 0);
}

} // namespace
} // namespace vantrel
