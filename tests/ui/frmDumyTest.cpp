#include "ui/dialogs/frmDumy.h"

#include "support/Windows.h"
#include "ui/look/WindowHolder.h"

namespace vantrel::tests {
namespace {

TEST(frmDumyTest, GivesAHandleAndIsNeverShown) {
    const WindowHolder<frmDumy> window(new frmDumy);
    EXPECT_NE(window->handle(), nullptr);
    runEvents();
    EXPECT_FALSE(window->IsShown());
    EXPECT_EQ(window->GetTitle().utf8_string(), "SetEther()用ダミーウィンドウです。");
}

TEST(frmDumyTest, DoesNotKeepTheProgramAlive) {
    const WindowHolder<frmDumy> window(new frmDumy);
    EXPECT_FALSE(window->ShouldPreventAppExit());
}

} // namespace
} // namespace vantrel::tests
