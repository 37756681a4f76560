#include "JobFetchFixture.h"

namespace vantrel {
namespace {

using tests::JobFetchTest;

TEST_F(JobFetchTest, ALinkToAFileIsNotFetchedOver) {
    world.pc.write("elsewhere", "linked");
    std::filesystem::create_symlink("elsewhere", world.pc.path("WELD.JBI"));
    expectBlocked();
    EXPECT_EQ(world.pc.read("elsewhere"), "linked");
}

TEST_F(JobFetchTest, ALinkThatLeadsNowhereIsNotFetchedOver) {
    std::filesystem::create_symlink("nowhere", world.pc.path("WELD.JBI"));
    expectBlocked();
    EXPECT_TRUE(std::filesystem::is_symlink(world.pc.path("WELD.JBI")));
    EXPECT_FALSE(world.pc.has("nowhere"));
}

} // namespace
} // namespace vantrel
