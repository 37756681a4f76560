#pragma once

#include <cstdint>
#include <string>

namespace vantrel {

class MessageTable;
class ProgressPanel;
struct SessionProperties;

/// The progress dialog as the session shows it: nothing at all while `DisplayMonitor` is off, when
/// the dialog belongs to the command that called the session.
///
/// A press of Cancel can arrive whenever the event loop runs, and showing a message clears what
/// it left; so the presses of one operation are kept here, where no later message loses them, and
/// the panel is told to go on showing that a press was taken.
class SessionProgress {
  public:
    SessionProgress(const SessionProperties& properties, const MessageTable& messages,
                    ProgressPanel& panel);

    /// Where an operation begins: of an earlier press only one made in a window that is still
    /// visible counts, for it is meant for the command that this operation is a part of.
    void begin();
    /// Where the operation ends: hides the dialog, even if `DisplayMonitor` was switched off since
    /// it was shown.
    void end();

    /// Text, bar and second label for work on a single thing, shown with the next message.
    void prepare(const std::string& message, bool cancelButton, bool bar);
    void open(const std::string& message, bool cancelButton, bool bar);
    void show(const std::string& message);
    /// Text, bar and second label for entry `item` (counted from 0) of `count`; nothing yields.
    void step(const std::string& message, std::int32_t item, std::int32_t count);
    void hide();

    /// Whether Cancel was pressed since `begin`.
    bool isCancelled();
    /// The same after the event loop had a chance to deliver a press.
    bool isCancelledAfterYield();
    /// Whether Cancel was pressed, asked for an entry that is passed over. Lists may hold millions
    /// of these, so only now and then, and at the list's end, one is shown and a press let in.
    bool isCancelledPassingOver(const std::string& name, std::int32_t item, std::int32_t count);
    /// Whether it was pressed, as long as the window is to be seen, be it the calling command's:
    /// what a hidden one still holds is of work that is over.
    bool isCancelledInView();
    /// The same while a directory is read, of which `entries` are there already; now and then
    /// events run before.
    bool isCancelledReading(std::int32_t entries);

    /// What is done while the controller's directory is read.
    std::string readingDirectory() const;
    /// "Transferring " and "Deleting " with a name; without one they stand alone.
    std::string transferring(const std::string& name = {}) const;
    std::string deleting(const std::string& name) const;

  private:
    bool silent() const;

    const SessionProperties& properties_;
    const MessageTable& messages_;
    ProgressPanel& panel_;
    bool pressed_ = false;
    bool shown_ = false; ///< by the present operation
};

} // namespace vantrel
