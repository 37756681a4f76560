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

} // namespace
} // namespace vantrel::tests
