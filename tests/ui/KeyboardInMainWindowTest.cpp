#include "DialogTest.h"
#include "ProgramWorld.h"
#include "ui/FileViewer.h"

#include <gtk/gtk.h>
#include <wx/bmpbuttn.h>
#include <wx/menu.h>

namespace vantrel::tests {
namespace {

/// The whole program with nothing but a keyboard.
class KeyboardInMainWindowTest : public testing::Test, public ProgramWorld {
  protected:
    KeyboardInMainWindowTest() {
        settings("TransMode=16\r\n");
        pcJob("A");
        pcJob("B");
        robotJob("X");
        start(true);
        controls().lsvPC->focus();
        EXPECT_TRUE(waitFor([this] { return pcList().HasFocus() && window().IsActive(); }));
    }

    /// The name of the control that the keyboard works in; its own parts have none.
    std::string focused() {
        auto* part = gtk_window_get_focus(GTK_WINDOW(window().GetHandle()));
        for (; part; part = gtk_widget_get_parent(part))
            if (const auto* const control = controlOf(window(), part);
                control && control->GetName() != wxPanelNameStr)
                return control->GetName().utf8_string();
        return {};
    }

  private:
    static const wxWindow* controlOf(const wxWindow& window, const GtkWidget* widget) {
        for (const wxWindow* const child : window.GetChildren()) {
            if (child->GetHandle() == widget)
                return child;
            if (const auto* const found = controlOf(*child, widget))
                return found;
        }
        return nullptr;
    }
};

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

TEST_F(KeyboardInMainWindowTest, EveryButtonWithAnIconOnlyHasANameForScreenReaders) {
    std::vector<std::string> nameless;
    addNameless(window().GetHandle(), &nameless);
    EXPECT_EQ(nameless, std::vector<std::string>());
}

TEST_F(KeyboardInMainWindowTest, TabGoesFromPaneToPaneAndComesBack) {
    std::vector<std::string> way{focused()};
    do {
        pressKey(WXK_TAB);
        ASSERT_TRUE(waitFor([&] { return focused() != way.back(); })) << way.back();
        way.push_back(focused());
    } while (way.back() != way.front() && way.size() < 20);
    EXPECT_EQ(way, (std::vector<std::string>{"lsvPC", "cmbPCFileType", "lsvCtrl", "cmbCtrlFileType",
                                             "cmbRbtName", "trvFolderName", "Command1", "lsvPC"}));
}

TEST_F(KeyboardInMainWindowTest, F5ReadsTheActivePaneAnewFromEverywhere) {
    menu("mnuFile(5)");
    int files = 2;
    const auto expectRefresh = [&](wxWindow& control) {
        pcJob("NEW" + std::to_string(++files));
        focus(control);
        pressKey(WXK_F5);
        EXPECT_TRUE(waitFor([&] { return pcList().GetItemCount() == files; })) << control.GetName();
    };
    expectRefresh(pcList());
    expectRefresh(*controls().rtxFileDisp);
    expectRefresh(*controls().cmbPCFileType);
    expectRefresh(*controls().Command1);
    ASSERT_NO_FATAL_FAILURE(dropFolderTree());
    expectRefresh(*controls().trvFolderList);
}

TEST_F(KeyboardInMainWindowTest, AnOperationThatHasBegunSinceAKeyWasPressedIsNotEntered) {
    pcJob("NEW");
    const int items = pcList().GetItemCount();
    wxKeyEvent key(wxEVT_CHAR_HOOK);
    key.m_keyCode = WXK_F5;
    key.SetEventObject(&window());
    window().HandleWindowEvent(key);
    window().setLocked(true);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(pcList().GetItemCount(), items);
    window().setLocked(false);
}

TEST_F(KeyboardInMainWindowTest, KeysOfTheListsDoNothingElsewhere) {
    for (wxWindow* control : {static_cast<wxWindow*>(controls().cmbPCFileType),
                              static_cast<wxWindow*>(controls().Command1)}) {
        focus(*control);
        pressKey(WXK_DELETE);
        pressKey('A', wxMOD_CONTROL);
        pressKey(WXK_BACK);
        runEvents();
    }
    EXPECT_TRUE(folder.has("jobs/A.JBI"));
    EXPECT_EQ(controls().lsvPC->selectedRows().size(), 1u);
    EXPECT_EQ(pcList().GetItemText(0), "A.JBI");
}

TEST_F(KeyboardInMainWindowTest, TheListsHaveTheirKeys) {
    pressKey('A', wxMOD_CONTROL);
    EXPECT_TRUE(waitFor([this] { return controls().lsvPC->selectedRows().size() == 2; }));
    pressKey(WXK_BACK);
    EXPECT_TRUE(waitFor([this] { return pcList().FindItem(-1, "jobs") >= 0; }));
    choose(*controls().lsvPC, {std::size_t(pcList().FindItem(-1, "jobs"))});
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([this] { return pcList().FindItem(-1, "A.JBI") == 0; }));
    modal.act([](wxDialog& question) { click(question, "cmdYesNo0"); });
    pressKey(WXK_DELETE);
    EXPECT_TRUE(waitFor([this] { return !folder.has("jobs/A.JBI"); }));
}

TEST_F(KeyboardInMainWindowTest, EveryMenuOpensByItsKey) {
    const auto& bar = *window().GetMenuBar();
    std::string keys;
    // Those that are commands are there as well.
    auto* const entries = gtk_container_get_children(GTK_CONTAINER(bar.GetHandle()));
    for (const auto* entry = entries; entry; entry = entry->next) {
        const std::string label = gtk_menu_item_get_label(GTK_MENU_ITEM(entry->data));
        const auto underscore = label.find('_');
        ASSERT_NE(underscore, std::string::npos) << label;
        keys += label.at(underscore + 1);
    }
    g_list_free(entries);
    EXPECT_EQ(keys.size(), bar.GetMenuCount() + 1);
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end()) << keys;
}

} // namespace
} // namespace vantrel::tests
