#include "ProgramWorld.h"

#include <gtk/gtk.h>

namespace vantrel::tests {
namespace {

/// Adds the visible buttons for which a screen reader has no name; the text of a choice is its own.
void addNameless(GtkWidget* widget, void* nameless) {
    const bool isOfChoice = gtk_widget_get_ancestor(widget, GTK_TYPE_COMBO_BOX);
    if (GTK_IS_BUTTON(widget) && gtk_widget_get_mapped(widget) && !isOfChoice) {
        const auto* const name = atk_object_get_name(gtk_widget_get_accessible(widget));
        if (!name || !*name)
            static_cast<std::vector<std::string>*>(nameless)->emplace_back(
                gtk_widget_get_name(gtk_widget_get_parent(widget)));
    }
    if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), addNameless, nameless);
}

/// What a screen reader is told is not to be had through the toolkit.
TEST(ScreenReader, IsToldANameOfEveryButtonThatHasAnIconOnly) {
    ProgramWorld world;
    world.start(false);
    std::vector<std::string> nameless;
    addNameless(world.window().GetHandle(), &nameless);
    EXPECT_EQ(nameless, std::vector<std::string>());
}

/// The program with two jobs on the PC and one on the controller.
class ListForScreenReaders : public testing::Test, public ProgramWorld {
  protected:
    ListForScreenReaders() {
        settings("TransMode=16\r\n");
        pcJob("A");
        pcJob("B");
        robotJob("X");
        start(true);
        controls().lsvPC->focus();
        EXPECT_TRUE(waitFor([this] { return pcList().HasFocus() && window().IsActive(); }));
    }
    /// Of the control that has the keyboard.
    AtkObject* told() {
        return gtk_widget_get_accessible(gtk_window_get_focus(GTK_WINDOW(window().GetHandle())));
    }
    static std::string text(const char* told) { return told ? told : ""; }
    bool isTold(const std::string& name, const std::string& beginning) {
        return waitFor([&] {
            return text(atk_object_get_name(told())) == name &&
                   text(atk_object_get_description(told())).starts_with(beginning);
        });
    }
};

TEST_F(ListForScreenReaders, IsToldWithTheRowThatHasTheFocus) {
    EXPECT_TRUE(isTold("PC", "A.JBI, 26, 20"));
    pressKey(WXK_DOWN);
    EXPECT_TRUE(isTold("PC", "B.JBI, 26, 20"));
    menu("mnuDisp(0)"); // the native list is another one now
    controls().lsvPC->focus();
    EXPECT_TRUE(isTold("PC", "B.JBI"));
    controls().lsvCtrl->focus();
    EXPECT_TRUE(isTold("Controller", "X.JBI"));
}

TEST_F(ListForScreenReaders, IsToldWithTheReasonWhyItIsEmpty) {
    start(false);
    controls().lsvCtrl->focus();
    EXPECT_TRUE(isTold("Controller", "Not read yet. Press F5."));
    EXPECT_EQ(controllerList().GetItemCount(), 0);
}

} // namespace
} // namespace vantrel::tests
