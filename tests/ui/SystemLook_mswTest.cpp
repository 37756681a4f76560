#include "support/ReplacedImport.h"
#include "ui/look/SystemLook.h"

#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

int ghostingCalls = 0;
void WINAPI countGhostingCall() {
    ++ghostingCalls;
}

/// The system does not say whether it would, so what it was told is looked at.
TEST(PrepareSystem, KeepsTheSystemFromOfferingToEndAProgramWhoseLibraryBlocks) {
    ghostingCalls = 0;
    const ReplacedImport import("DisableProcessWindowsGhosting", countGhostingCall);
    ASSERT_TRUE(import.isFound());
    prepareSystem();
    EXPECT_EQ(ghostingCalls, 1);
}

TEST(PrepareSystem, MakesADriveWithoutAMediumAnErrorAndNoBox) {
    constexpr UINT wanted = SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX;
    const UINT before = ::SetErrorMode(0);
    prepareSystem();
    EXPECT_EQ(::GetErrorMode() & wanted, wanted);
    ::SetErrorMode(before);
}

} // namespace
} // namespace vantrel::tests
