#include "ui/OperationGuard.h"

#include "support/Windows.h"

#include <wx/button.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/timer.h>

namespace vantrel::tests {
namespace {

class OperationGuardTest : public testing::Test {
  protected:
    OperationGuardTest() {
        guard.guard(window);
        for (auto* frame : {window, other}) {
            int& count = frame == window ? reached : reachedOther;
            frame->Bind(wxEVT_BUTTON, [&count](wxCommandEvent&) { ++count; });
            frame->Bind(wxEVT_MENU, [&count](wxCommandEvent&) { ++count; });
            frame->Bind(wxEVT_KEY_DOWN, [&count](wxKeyEvent&) { ++count; });
            frame->Bind(wxEVT_LEFT_DOWN, [&count](wxMouseEvent&) { ++count; });
            frame->Bind(wxEVT_TIMER, [&count](wxTimerEvent&) { ++count; });
            frame->Bind(wxEVT_CLOSE_WINDOW, [&count](wxCloseEvent&) { ++count; });
        }
    }
    ~OperationGuardTest() override {
        guard.guard(nullptr);
        window->Destroy();
        other->Destroy();
        runEvents();
    }

    template <typename Event>
    static void send(wxWindow& to, Event event) {
        event.SetEventObject(&to);
        to.HandleWindowEvent(event);
    }
    /// One of everything that an operator, or the clock, can do to a window.
    void doEverything(wxFrame& frame, wxButton& button) {
        send(button, wxCommandEvent(wxEVT_BUTTON, button.GetId()));
        send(frame, wxCommandEvent(wxEVT_MENU, wxID_COPY));
        send(frame, wxKeyEvent(wxEVT_KEY_DOWN));
        send(frame, wxMouseEvent(wxEVT_LEFT_DOWN));
        wxTimer timer(&frame);
        wxTimerEvent tick(timer);
        frame.HandleWindowEvent(tick);
    }

    bool busy = false;
    OperationGuard guard{busy};
    wxFrame* window = new wxFrame(nullptr, wxID_ANY, "guarded");
    wxFrame* other = new wxFrame(nullptr, wxID_ANY, "progress");
    wxButton& inside = *new wxButton(window, wxID_ANY, "inside");
    wxButton& cancel = *new wxButton(other, wxID_ANY, "cancel");
    int reached = 0;
    int reachedOther = 0;
};

TEST_F(OperationGuardTest, TellsOfTheBeginningAndTheEndOfNestedOperationsOnce) {
    std::string told;
    guard.onBegun = [&told] { told += "begun "; };
    guard.onEnded = [&told] { told += "ended "; };
    guard.lock();
    guard.lock();
    guard.unlock();
    EXPECT_EQ(told, "begun ");
    guard.unlock();
    EXPECT_EQ(told, "begun ended ");
    guard.unlock();
    EXPECT_EQ(told, "begun ended ") << "nothing was left to end";
}

TEST_F(OperationGuardTest, LetsEverythingThroughWhileNothingRuns) {
    doEverything(*window, inside);
    EXPECT_EQ(reached, 5);
}

TEST_F(OperationGuardTest, RefusesEverythingWhileLocked) {
    guard.lock();
    doEverything(*window, inside);
    EXPECT_EQ(reached, 0);
}

TEST_F(OperationGuardTest, LetsOtherWindowsWorkWhileLocked) {
    guard.lock();
    doEverything(*other, cancel);
    EXPECT_EQ(reachedOther, 5);
}

TEST_F(OperationGuardTest, RefusesTheCloseWithoutAWord) {
    guard.lock();
    EXPECT_FALSE(window->Close());
    EXPECT_EQ(reached, 0);
}

TEST_F(OperationGuardTest, LocksNest) {
    guard.lock();
    guard.lock();
    guard.unlock();
    EXPECT_TRUE(guard.isLocked());
    EXPECT_TRUE(busy);
    guard.unlock();
    EXPECT_FALSE(guard.isLocked());
    EXPECT_FALSE(busy);
    guard.unlock();
    EXPECT_FALSE(guard.isLocked());
}

TEST_F(OperationGuardTest, RefusesPopUpMenusToo) {
    guard.lock();
    wxMenu menu;
    wxCommandEvent event(wxEVT_MENU, wxID_COPY);
    event.SetEventObject(&menu);
    window->HandleWindowEvent(event);
    EXPECT_EQ(reached, 0);
}

TEST_F(OperationGuardTest, NothingIsBegunDuringAYield) {
    bool lockedInside = false;
    bool busyInside = true;
    window->CallAfter([&] {
        lockedInside = guard.isLocked();
        busyInside = busy;
        doEverything(*window, inside);
    });
    guard.yield();
    EXPECT_TRUE(lockedInside);
    EXPECT_FALSE(busyInside) << "no operation runs";
    EXPECT_EQ(reached, 0);
    EXPECT_FALSE(guard.isLocked());
}

TEST_F(OperationGuardTest, AYieldInsideAYieldDoesNothing) {
    int runs = 0;
    window->CallAfter([&] {
        window->CallAfter([&] { ++runs; });
        guard.yield();
        EXPECT_EQ(runs, 0);
    });
    guard.yield();
}

} // namespace
} // namespace vantrel::tests
