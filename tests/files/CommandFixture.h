#pragma once

#include "base/ApplicationState.h"
#include "files/ControllerModels.h"
#include "files/Panes.h"
#include "files/TransferCommands.h"
#include "files/TransferTable.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/Snappy.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePaneWindow.h"
#include "support/FakeZurolink.h"
#include "support/RecordingProgressView.h"
#include "support/ScriptedQuestionWindow.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel::tests {

/// Everything below the windows, real but for the library, the windows and the operator: a PC
/// folder on the disk, and a controller in memory at the serial line.
class CommandFixture : public testing::Test {
  protected:
    static constexpr std::int16_t cygna = 2;
    static constexpr int allFiles = 4; ///< the PC pane's filter entry "*.*"

    CommandFixture() {
        program.write("FileTable.tbl", "FIXED.DAT,0,0,0,0,0,0,0,0,1\n"
                                       "*.JBI,1,1,1,1,1,1,1,1,1\n"
                                       "*.JBR,1,1,1,1,1,1,1,1,1\n"
                                       "*.DAT,1,1,1,1,1,1,0,0,1\n"
                                       "*.CND,0,0,0,0,0,0,1,1,1\n");
        table.load(program.path());
        progress.attach(&progressView);
        state.Controler = cygna;
        state.PCPath = pc.path();
        session.path = pc.path();
        messages.replace({
            text(0, "Vantrel"),
            text(2, "not read"),
            text(5, "Transfer failed: "),
            text(6, "no such file"),
            text(7, "File transfer"),
            text(8, " refused"),
            text(9, "Delete failed: "),
            text(10, "Delete [%] from the PC?"),
            text(11, "Delete [%] from %?"),
            text(12, " is not there: "),
            text(14, "PC: "),
            text(15, "Controller: "),
            text(16, " items"),
            text(17, "print? "),
            text(18, "not displayed "),
            text(19, "Save jobs"),
            text(20, "Load jobs"),
            text(21, "Save variables"),
            text(22, "Load variables"),
            text(26, " at"),
            text(27, " not deleted"),
            text(28, " original not deleted"),
            text(34, "address unset"),
            text(42, " unusable name"),
            text(44, " not expressible"),
            text(47, " is a folder"),
            text(49, "skipped: %"),
            text(50, "waiting"),
            text(51, "item "),
            text(52, " of "),
            text(54, "list not written: "),
            text(56, " is local"),
            text(61, " kept as "),
            text(62, " is ambiguous"),
            text(57, "nothing to print"),
            text(93, "reading directory"),
            text(65, "gone and not replaced:"),
            text(66, " other name"),
            text(67, " changed meanwhile, stays"),
            text(68, "not shown:"),
            text(69, "not known:"),
            text(70, "and % more"),
            text(58, "not printed "),
            text(391, "the controller loses"),
            text(392, "the PC loses"),
            text(393, "% more"),
            text(546, "not flushed"),
            text(547, "mark unusable"),
            text(372, " mark unusable: "),
            text(394, "replace values? "),
            text(400, "sent"),
            text(401, "received"),
            text(402, "moved"),
            text(403, "deleted"),
            text(404, "skipped"),
            text(405, "failed"),
            text(406, "not tried"),
            text(407, "cancelled"),
            text(408, "% %"),
            text(409, ", "),
            text(410, "kept"),
            text(449, "new name of %:"),
            text(451, "unusable"),
            text(452, "taken"),
            text(453, " not made"),
            text(454, " not renamed"),
            text(455, "waste bin"),
            text(456, ", % selected (%)"),
            text(459, "copied"),
            text(460, " not copied"),
            text(461, " not viewed"),
            text(464, "no such folder"),
            text(465, " not finished"),
            text(423, "%'s folder, to %?"),
            text(502, "already exists. Overwrite it?"),
            text(503, "cancelled"),
            text(504, "Transferring "),
            text(507, "Deleting "),
            text(506, "list not opened"),
            text(521, "not readable"),
            text(522, "no entry"),
            text(520, "name not expressible"),
            text(523, "unusable name"),
            text(541, "ambiguous"),
            text(542, "folder not opened"),
            text(525, "did not arrive"),
            text(536, "changed meanwhile"),
            text(533, "Cancel"),
            text(6549, "% of %"),
            text(6551, "% elapsed"),
            text(6552, "% minutes left"),
            text(6553, "1 minute left"),
            text(6554, "% seconds left"),
            text(6555, "a moment left"),
            text(6556, "left out:"),
            text(6557, "not listable:"),
            text(6560, "already here"),
            text(1200, "not on the controller"),
            text(2000, "line broken"),
            text(2040, "unreachable"),
        });
    }

    static MessageEntry text(std::int16_t number, const std::string& shown) {
        return {number, shown, shown};
    }

    FakeController& robot() { return library.at("COM1"); }

    static std::string job(const std::string& name, const std::string& version = "1") {
        return "/JOB\r\n//NAME " + name + "\r\nVERSION " + version + "\r\n";
    }
    void pcJob(const std::string& name, const std::string& version = "1") {
        pc.write(name + ".JBI", job(name, version));
    }
    void robotJob(const std::string& name, const std::string& version = "1") {
        robot().put(name + ".JBI", job(name, version));
    }

    /// Shows both panes as they are now, all PC files, and forgets what that took.
    void showPanes() {
        panes.fillFilterChoices();
        window.pcFilter = allFiles;
        ASSERT_TRUE(panes.scanPC(pc.path()));
        ASSERT_TRUE(panes.readController());
        panes.fill(ActiveSide::PC);
        panes.fill(ActiveSide::Controller);
        library.forgetCalls();
        progressView.pictures.clear();
    }
    void selectOnPC(const std::vector<std::string>& names) {
        showPanes();
        window.pc.click(names);
        ASSERT_EQ(window.pc.selected.size(), names.size());
    }
    void selectOnController(const std::vector<std::string>& names) {
        showPanes();
        window.controller.click(names);
        ASSERT_EQ(window.controller.selected.size(), names.size());
    }

    /// What holds after every command, whichever way it ended.
    void expectLeftInOrder() const {
        EXPECT_EQ(window.lockDepth, 0);
        EXPECT_EQ(window.busyDepth, 0);
        EXPECT_FALSE(progress.isVisible());
        EXPECT_TRUE(session.DisplayMonitor);
        EXPECT_EQ(library.openLinks(), linksLeftOpen);
        EXPECT_FALSE(window.pc.focusedWhileLocked);
        EXPECT_FALSE(window.controller.focusedWhileLocked);
    }

    /// Presses Cancel at the n-th yield of a progress window from now on.
    void pressCancelAtYield(int yield) {
        progressView.onYield = [this, at = progressView.yields + yield](int now) {
            if (now == at)
                progress.pressCancel();
        };
    }

    int linksLeftOpen = 0;
    TemporaryFolder program;
    TemporaryFolder pc;
    ApplicationState state;
    MessageTable messages;
    LanguageFiles languages{program.path()};
    FakeZurolink library;
    FakeMessageBoxes boxes;
    ScriptedQuestionWindow question;
    RecordingProgressView progressView;
    ProgressPanel progress;
    OperatorTalk talk{progress, question, boxes};
    FakePaneWindow window;
    TransferTable table;
    Snappy session{{library, state.TransMode, messages, languages, progress, talk, program.path(),
                    [] { return nullptr; }}};
    Panes panes{state, session, table, messages, window};
    ResultLog results;
    TransferCommands commands{
        {state, session, panes, window, table, messages, progress, talk, results}};
};

/// A single command, which leaves everything in order.
class CommandTest : public CommandFixture {
  protected:
    void TearDown() override { expectLeftInOrder(); }
};

} // namespace vantrel::tests
