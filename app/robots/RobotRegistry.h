#pragma once

#include "base/Result.h"
#include "base/RobotRecord.h"
#include "platform/TextEncoding.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class MessageBoxes;
class MessageTable;
class RobotPaths;
struct ApplicationState;
struct RobotNames;

/// The robot box `cmbRbtName` as the registry fills it; filling raises no operator's event.
class RobotBox {
  public:
    virtual ~RobotBox() = default;
    virtual void clear() = 0;
    virtual void add(const std::string& name) = 0;
    virtual void select(int index) = 0;
};

/// The registered robots in "robot.ini" of the program's folder.
class RobotRegistry {
  public:
    RobotRegistry(ApplicationState& state, const MessageTable& messages, MessageBoxes& boxes,
                  const std::string& programFolder);

    /// Fills the robot list, selects the boot robot and fills the box. A file that is missing is
    /// written first; one that cannot be read is told, and box and current robot stay as they were.
    /// So is a name to start with that more than one robot has.
    void read(RobotBox& box);
    /// The same for a program that only looks: a file that is missing is not written, the robots
    /// are those that it would have.
    void look(RobotBox& box);

    /// Fills the box again after an edit and selects the current robot.
    void fillBox(RobotBox& box) const;

    /// To be called when the operator has applied a change of the list. A file that could not be
    /// read whole is rewritten only then.
    void noteEdit() { edited_ = true; }
    /// Whether a change of the operator's would be lost if the program ended now.
    bool hasUnwrittenEdit() const { return edited_; }

    /// Rewrites the file whole from the list and the current robot's name, in the encoding in which
    /// it was read, or in UTF-8 where a code page lacks one of the characters. A file that could
    /// not be read whole is left alone, or kept beside the new one under another name when the
    /// operator has edited the list; that is refused while two robots have the same name.
    Outcome write();

    const std::string& path() const { return path_; }

  private:
    std::string defaultText() const;
    Result<std::string> fileContent() const;
    bool readList(const std::string& content);
    RobotNames names(const std::string& content) const;
    /// Whether no more than one robot has the name to start with.
    bool selectBootRobot(const RobotNames& names);
    void tellNameIsShared() const;
    void tellNotRead();
    std::optional<std::string> encoded(const std::string& text) const;
    std::string freeBackupPath() const;
    /// Puts the file that could not be read aside first, and back when the new one fails.
    Outcome writeBesideUnreadFile(const std::string& bytes);

    ApplicationState& state_;
    const MessageTable& messages_;
    MessageBoxes& boxes_;
    std::string programFolder_;
    std::string path_;
    TextEncoding encoding_ = TextEncoding::CodePage;
    bool plain_ = true; ///< the file holds ASCII only, which any encoding can go on from
    bool readWhole_ = true;
    bool edited_ = false;
};

/// The folder that relative robot folders start from: `folder` in lower case, or in its own
/// spelling where the system tells letter case apart and the lower-case folder does not exist.
std::string robotBaseFolder(const std::string& folder);

/// Makes the folders of a list absolute up to the sentinel; false when there is none.
bool makeFoldersAbsolute(std::vector<RobotRecord>& robots, const RobotPaths& paths);

} // namespace vantrel
