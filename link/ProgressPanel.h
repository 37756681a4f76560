#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace vantrel {

class ProgressPanel;

/// How the operator has marked a controller, so that it is not taken for another one.
struct PlaceMark {
    std::string text = {};                    ///< empty without a mark
    std::optional<std::uint32_t> colour = {}; ///< red, green and blue
    std::string colourName = {};

    bool operator==(const PlaceMark&) const = default;
};

/// What shows a ProgressPanel: the window `frmMsgStat`.
class ProgressView {
  public:
    virtual ~ProgressView() = default;
    /// Brings the window in line with the panel. Painting is left to the yields and to the gate
    /// before the library: a bar that is painted before it is laid out stands one step behind.
    virtual void refresh(const ProgressPanel& panel) = 0;
    /// Lets pending events run once, so that a press of Cancel can be delivered.
    virtual void yield() = 0;
    /// Destroys the window; the panel is not shown again.
    virtual void unload() = 0;
};

/// The progress dialog without its window: texts, bar and the cancel text. There is one, shared by
/// the session and the transfer commands.
class ProgressPanel {
  public:
    /// The text that the Cancel button leaves.
    static constexpr const char* cancelled = "CANCEL";

    void attach(ProgressView* view) { view_ = view; }

    void setTitle(std::string title);
    void setCancelCaption(std::string caption);
    /// The line that names the controller meant: where nobody has said otherwise, what `usual`
    /// gives; it is asked anew each time.
    void setUsualPlace(std::function<std::string()> usual) { usualPlace_ = std::move(usual); }
    /// The line for the command under way, which may be empty; nothing for the usual one.
    void setPlace(std::optional<std::string> place);
    /// The time from any beginning; without a clock none passes.
    using Clock = std::function<std::chrono::milliseconds()>;
    void setClock(Clock clock) { clock_ = std::move(clock); }
    /// The line that says how far the work is, of the step that is shown and of the time that the
    /// window has been visible since this call: what the operator takes for an answer is no work.
    /// It is asked whenever the window is brought in line, from the next time on.
    using Pace = std::function<std::string(int item, int count, std::chrono::milliseconds worked)>;
    void setPace(Pace pace);
    /// The mark of the controller meant, asked anew each time; wherever it is named its mark stands
    /// beside it.
    void setMark(std::function<PlaceMark()> mark) { markInForce_ = std::move(mark); }
    void showCancelButton(bool shown);
    void showBar(bool shown);

    /// Makes the window visible, clears the cancel text and yields once.
    void show(std::string message);
    /// Makes the window visible again as it was; what Cancel left and the texts stay, nothing
    /// yields.
    void showAgain();
    void hide();
    /// Another step of the same work: texts and bar change, what Cancel left stays, nothing yields.
    /// `item` of `count` is counted from 0; `waitingFor` is the second label's text.
    void step(std::string message, int item, int count, std::string waitingFor);
    void yield();
    void unload();

    void pressCancel() { cancelText_ = cancelled; }
    void clearCancel() { cancelText_.clear(); }
    bool isCancelled() const { return cancelText_ == cancelled; }

    /// Whoever takes note of a press beyond that text says so here until the work has ended, so
    /// that the Cancel button does not look untouched again after the next message.
    void keepPress(bool kept) { pressKept_ = kept; }
    /// Whether a press is known to somebody; the Cancel button is off meanwhile.
    bool isPressTaken() const { return pressKept_ || isCancelled(); }

    bool isVisible() const { return visible_; }
    const std::string& title() const { return title_; }
    const std::string& message() const { return message_; }
    const std::string& waitingFor() const { return waitingFor_; }
    const std::string& cancelCaption() const { return cancelCaption_; }
    /// The line that names the controller, its mark's text included; empty where none is meant.
    std::string place() const;
    const std::string& pace() const { return paceText_; }
    /// The mark in that line.
    PlaceMark mark() const;
    bool cancelButtonShown() const { return cancelButtonShown_; }
    bool barShown() const { return barShown_; }
    int item() const { return item_; }
    int count() const { return count_; }

  private:
    void refresh();
    void setVisible(bool visible);
    std::chrono::milliseconds worked() const;
    std::string unmarkedPlace() const;

    ProgressView* view_ = nullptr;
    std::string title_;
    std::string message_;
    std::string waitingFor_;
    std::function<std::string()> usualPlace_;
    std::function<PlaceMark()> markInForce_;
    std::optional<std::string> place_;
    std::string cancelCaption_;
    std::string cancelText_;
    bool pressKept_ = false;
    Clock clock_;
    Pace pace_;
    std::string paceText_;
    std::chrono::milliseconds workedBefore_{0};
    std::chrono::milliseconds visibleSince_{0};
    bool visible_ = false;
    bool cancelButtonShown_ = true;
    bool barShown_ = true;
    int item_ = 0;
    int count_ = 0;
};

} // namespace vantrel
