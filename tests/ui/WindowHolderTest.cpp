#include "ui/look/WindowHolder.h"

#include "support/Windows.h"

#include <wx/frame.h>

namespace vantrel::tests {
namespace {

wxFrame* newFrame() {
    return new wxFrame(nullptr, wxID_ANY, "frame");
}

TEST(WindowHolderTest, DestroysItsWindow) {
    const wxWeakRef<wxFrame> frame(newFrame());
    { const WindowHolder<wxFrame> holder(frame.get()); }
    EXPECT_TRUE(waitFor([&] { return !frame; }));
}

TEST(WindowHolderTest, AWindowThatIsGoneIsNoLongerHeld) {
    WindowHolder<wxFrame> holder(newFrame());
    holder->Destroy();
    EXPECT_TRUE(waitFor([&] { return !holder; }));
    holder.unload();
    EXPECT_EQ(holder.get(), nullptr);
}

TEST(WindowHolderTest, AnotherWindowReplacesTheFirst) {
    const wxWeakRef<wxFrame> first(newFrame());
    WindowHolder<wxFrame> holder(first.get());
    wxFrame* const second = newFrame();
    holder.reset(second);
    EXPECT_EQ(holder.get(), second);
    EXPECT_TRUE(waitFor([&] { return !first; }));
}

} // namespace
} // namespace vantrel::tests
