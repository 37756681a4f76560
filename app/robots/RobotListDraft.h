#pragma once

#include "app/robots/RobotCheck.h"
#include "base/RobotRecord.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// One robot of the working list. Its identity stays whatever is edited, inserted or deleted.
struct RobotEntry {
    int identity = 0;
    RobotRecord robot;
    RobotRecord stored; ///< as it stood before it was edited; of a new robot as it was inserted
    bool isNew = false;

    bool isChanged() const { return isNew || robot != stored; }
    /// Whether something other than the mark was edited: a mark alone leaves the rest as it was
    /// read.
    bool isEdited() const {
        RobotRecord unmarked = robot;
        unmarked.Colour = stored.Colour;
        unmarked.Label = stored.Label;
        return isNew || unmarked != stored;
    }
};

/// The working copy of the robot list, as the settings dialog edits it.
class RobotListDraft {
  public:
    /// `robots` up to the sentinel; `current` is the place of the current robot. A robot that is
    /// inserted starts as `fresh`.
    RobotListDraft(const std::vector<RobotRecord>& robots, int current, RobotRecord fresh);

    const std::vector<RobotEntry>& entries() const { return entries_; }
    std::optional<std::size_t> selected() const { return selected_; }
    /// The selected robot, or an empty record.
    const RobotRecord& selectedRobot() const;
    void select(std::size_t index);

    /// Inserts a robot beside the selected one and selects it.
    void insertAfter();
    void insertBefore();
    /// Removes the selected robot and selects its neighbour: the one that takes its place, or the
    /// last. Where it was the current robot the neighbour becomes that.
    void remove();

    // Edits of the selected robot; without one they do nothing.
    void rename(const std::string& name);
    /// The text of an address box (0 to 3) has changed; what the box shows from then on.
    TypedPart setAddressPart(std::size_t part, const std::string& text);
    void setFolder(const std::string& path);
    void setMark(const std::string& colour, const std::string& label);

    /// Whether the operator has edited anything since the start or the last apply.
    bool isEdited() const { return edited_; }
    /// Whether the list differs from the stored one.
    bool isChanged() const;
    /// Where the current robot stands now; of a list that had none the first, of an empty list
    /// none.
    std::optional<std::size_t> current() const;
    /// The list as it is stored: addresses of changed robots tidied, the sentinel at its end.
    std::vector<RobotRecord> records() const;
    /// To be called when `records` has been stored.
    void noteApplied();

  private:
    RobotRecord* edit();
    void insert(std::size_t index);
    std::optional<std::size_t> placeOf(int identity) const;

    std::vector<RobotEntry> entries_;
    RobotRecord fresh_;
    std::vector<RobotRecord> stored_; ///< without the sentinel
    std::optional<std::size_t> selected_;
    int current_ = 0; ///< identity
    int lastIdentity_ = 0;
    bool edited_ = false;
};

} // namespace vantrel
