#include "DialogTest.h"
#include "ProgramWorld.h"
#include "ui/PaneDrag.h"
#include "ui/QuickFilter.h"

#include <gmock/gmock.h>
#include <wx/bmpbuttn.h>
#include <wx/statusbr.h>
#include <wx/timer.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;

/// The whole program as its operator works in the PC folder.
class PCFolderInMainWindowTest : public testing::TestWithParam<const char*>, public ProgramWorld {
  protected:
    PCFolderInMainWindowTest() {
        settings("TransMode=16\r\n", GetParam());
        for (const char* name : {"DOOR1", "DOOR2", "ROOF"})
            pcJob(name);
        robotJob("X");
        start(true);
        choose(*controls().lsvCtrl, {0}); // the other pane has to be turned to
        choose(*controls().lsvPC, {1});
        EXPECT_TRUE(waitFor([this] { return pcList().HasFocus() && window().IsActive(); }));
    }

    std::vector<std::string> names() { return namesIn(pcList()); }
    QuickFilter& quickFilter() { return *controls().pcQuickFilter; }
    void typeFilter(const std::string& text) { type(quickFilter(), "pcQuickFilterText", text); }
    std::vector<std::string> selected() {
        std::vector<std::string> found;
        for (const auto row : controls().lsvPC->selectedRows())
            found.push_back(names().at(row));
        return found;
    }
};

INSTANTIATE_TEST_SUITE_P(In, PCFolderInMainWindowTest, bothLanguages, languageName);

TEST_P(PCFolderInMainWindowTest, F2RenamesAndF7MakesAFolder) {
    modal.act([](wxDialog& dialog) {
        type(dialog, "txtName", "HOOD.JBI");
        click(dialog, "cmdOK");
    });
    pressKey(WXK_F2);
    EXPECT_TRUE(waitFor([this] { return selected() == std::vector<std::string>{"HOOD.JBI"}; }));
    EXPECT_TRUE(folder.has("jobs/HOOD.JBI"));
    EXPECT_FALSE(folder.has("jobs/DOOR2.JBI"));
    modal.act([](wxDialog& dialog) {
        type(dialog, "txtName", "line 2");
        click(dialog, "cmdOK");
    });
    pressKey(WXK_F7);
    EXPECT_TRUE(waitFor([this] { return selected() == std::vector<std::string>{"line 2"}; }));
    EXPECT_TRUE(pcList().HasFocus() || controls().lsvPC->IsDescendant(wxWindow::FindFocus()));
}

TEST_P(PCFolderInMainWindowTest, TheQuickFilterShowsWhatIsTypedAndGoesWithEsc) {
    pressKey('S', wxMOD_CONTROL);
    ASSERT_TRUE(waitFor([this] { return quickFilter().IsShownOnScreen(); }));
    typeFilter("door");
    EXPECT_THAT(names(), ElementsAre("DOOR1.JBI", "DOOR2.JBI"));
    EXPECT_THAT(selected(), ElementsAre("DOOR2.JBI")) << "what is still shown stays selected";
    expectNothingCutOff(quickFilter());
    saveScreenshot(window(), std::string("quick-filter-") + GetParam());
    EXPECT_LE(controls().lsvPC->GetRect().GetBottom(), quickFilter().GetPosition().y)
        << "the list makes room";
    focus(control<wxTextCtrl>(quickFilter(), "pcQuickFilterText"));
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitFor([this] { return !quickFilter().IsShown(); }));
    EXPECT_THAT(names(), ElementsAre("DOOR1.JBI", "DOOR2.JBI", "ROOF.JBI"));
    EXPECT_TRUE(waitFor([this] { return controls().lsvPC->IsDescendant(wxWindow::FindFocus()); }));
}

TEST_P(PCFolderInMainWindowTest, EnterGoesOnInTheFilteredListAndAnEmptyFilterGoes) {
    menu("mnuQuickFilter");
    typeFilter("roof");
    focus(control<wxTextCtrl>(quickFilter(), "pcQuickFilterText"));
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([this] { return controls().lsvPC->IsDescendant(wxWindow::FindFocus()); }));
    EXPECT_TRUE(quickFilter().IsShown()) << "the operator sees why names are missing";
    EXPECT_THAT(names(), ElementsAre("ROOF.JBI"));
    typeFilter("");
    EXPECT_THAT(names(), ElementsAre("DOOR1.JBI", "DOOR2.JBI", "ROOF.JBI"));
    focus(control<wxTextCtrl>(quickFilter(), "pcQuickFilterText"));
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([this] { return !quickFilter().IsShown(); }));
}

TEST_P(PCFolderInMainWindowTest, TheFilterOfTheActivePaneIsMeant) {
    robotJob("ROOF");
    choose(*controls().lsvCtrl, {0});
    menu("mnuRefresh");
    menu("mnuQuickFilter");
    ASSERT_TRUE(controls().ctrlQuickFilter->IsShownOnScreen());
    EXPECT_FALSE(quickFilter().IsShown());
    type(*controls().ctrlQuickFilter, "ctrlQuickFilterText", "roo");
    EXPECT_THAT(namesIn(controllerList()), ElementsAre("ROOF.JBI"));
    EXPECT_EQ(names().size(), 3u);
    click(*controls().ctrlQuickFilter, "ctrlQuickFilterClose");
    EXPECT_EQ(namesIn(controllerList()).size(), 2u);
}

TEST_P(PCFolderInMainWindowTest, FilesOfAnotherProgramAreCopiedIntoThePCPaneOnly) {
    const TemporaryFolder elsewhere;
    const auto dropped = elsewhere.write("NEW.JBI", job("NEW"));
    auto& drag = window().drag();
    EXPECT_FALSE(drag.acceptsFiles(ActiveSide::Controller)) << "nothing goes straight to a robot";
    EXPECT_FALSE(drag.dropFiles(ActiveSide::Controller, {dropped}));
    window().setLocked(true);
    EXPECT_FALSE(drag.dropFiles(ActiveSide::PC, {dropped}));
    window().setLocked(false);
    drag.whileDragging(ActiveSide::Controller,
                       [&] { EXPECT_FALSE(drag.dropFiles(ActiveSide::PC, {dropped})); });
    EXPECT_FALSE(drag.dropFiles(ActiveSide::PC, {}));
    modal.act([&](wxDialog& dialog) {
        EXPECT_FALSE(drag.acceptsFiles(ActiveSide::PC)) << "a prompt is about what is shown";
        click(dialog, "cmdCancel");
    });
    menu("mnuNewFolder");
    EXPECT_TRUE(drag.dropFiles(ActiveSide::PC, {dropped}));
    EXPECT_FALSE(folder.has("jobs/NEW.JBI")) << "the work waits until the drop is answered";
    EXPECT_TRUE(waitFor([this] { return selected() == std::vector<std::string>{"NEW.JBI"}; }));
    EXPECT_EQ(folder.read("jobs/NEW.JBI"), job("NEW"));
    EXPECT_FALSE(folder.has("robot/NEW.JBI"));
}

TEST_P(PCFolderInMainWindowTest, OtherProgramsGetTheSelectionByItsPaths) {
    choose(*controls().lsvPC, {0, 2});
    EXPECT_THAT(window().drag().selectedPaths(),
                ElementsAre(folder.path("jobs/DOOR1.JBI"), folder.path("jobs/ROOF.JBI")));
}

TEST_P(PCFolderInMainWindowTest, WhatAnotherProgramSavesIsShownByItself) {
    choose(*controls().lsvPC, {2});
    pcJob("ALPHA");
    EXPECT_TRUE(waitFor([this] { return names().size() == 4; }));
    EXPECT_THAT(selected(), ElementsAre("ROOF.JBI"));
}

TEST_P(PCFolderInMainWindowTest, NothingChangesBehindAQuestion) {
    const auto before = names();
    bool wasAsked = false;
    modal.act([&](wxDialog& dialog) {
        pcJob("NEW");
        wxTimer now(&window());
        wxTimerEvent look(now);
        window().HandleWindowEvent(look);
        EXPECT_EQ(names(), before);
        wasAsked = true;
        click(dialog, "cmdCancel");
    });
    pressKey(WXK_F2);
    EXPECT_TRUE(waitFor([&] { return wasAsked && names().size() == before.size() + 1; }));
}

TEST_P(PCFolderInMainWindowTest, SeveralSelectedItemsAreCountedInTheStatusBar) {
    choose(*controls().lsvPC, {0, 1, 2});
    const auto status = [this] { return controls().stsFileInf->GetStatusText(0).utf8_string(); };
    const auto bytes = std::to_string(2 * job("DOOR1").size() + job("ROOF").size());
    EXPECT_TRUE(waitFor([&] { return status().find(bytes) != std::string::npos; })) << status();
    const wxStatusBar& bar = *controls().stsFileInf;
    const auto room = [&bar] {
        wxRect field;
        bar.GetFieldRect(0, field);
        return field.width;
    };
    const int before = room();
    EXPECT_GE(before, bar.GetTextExtent(bar.GetStatusText(0)).x) << "nothing is cut off";
    saveScreenshot(window(), std::string("selection-") + GetParam());
    choose(*controls().lsvPC, {0});
    EXPECT_TRUE(waitFor([&] { return status().find(bytes) == std::string::npos; }));
    EXPECT_LT(room(), before) << "the others have their room again";
}

} // namespace
} // namespace vantrel::tests
