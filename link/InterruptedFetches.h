#pragma once

#include "link/GroupMark.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace vantrel {

class FetchFiles;
class HeldFile;
class MessageTable;
class OperatorTalk;

/// Files whose transfer to the PC ended with the program, by a power cut or because it was killed.
/// Their marks (`FetchMark`) tell of them at the next look at the folder, whoever looks: the old
/// version gets its name back, what had arrived is put away under a name that is no job's, and the
/// operator is told. Nothing is ever deleted but the mark, and that only after the operator was
/// told. The mark of a transfer that is running, here or in another program, is held and so left
/// alone. Where the disk does not tell whether it is, nothing is touched, and the operator is told
/// that the file may be incomplete. What lies under a mark's name and cannot be read as one is told
/// once as well, and the file that it stands for is not sent until somebody has removed it.
///
/// The mark of a group (`GroupMark`) tells of many files. One that has arrived and still is what
/// arrived is brought to the disk and not spoken of; one that is not what arrived stays, and the
/// operator is told that it may be incomplete.
class InterruptedFetches {
  public:
    InterruptedFetches(FetchFiles& files, const MessageTable& messages, OperatorTalk& talk)
        : files_(files), messages_(messages), talk_(talk) {}

    /// `names` are the folder's. True when there was something to settle, so that the folder now
    /// has other names. What cannot be mended is told once.
    bool settle(const std::string& folder, const std::vector<std::string>& names);
    /// 0, or the session's code for why the file must not be sent. It may be half of one, and the
    /// operator was not told so: its transfer is running, or nobody has looked at the folder since
    /// it was interrupted. Or its mark does not tell what became of it.
    std::int16_t forbidsSending(const std::string& folder, const std::string& name);
    /// Whether the mark of a group announces the file, and nobody knows yet what became of it. Not
    /// to be asked by the group's own program.
    bool isAnnounced(const std::string& folder, const std::string& name);
    /// Whether the operator was told of a transfer whose mark still lies there.
    bool isTold(const std::string& folder, const std::string& name) const;
    /// This program's own transfer, of which nothing is told while it runs.
    void begin(const std::string& folder, const std::string& name);
    void end() { running_.clear(); }
    /// The same for its group.
    void beginGroup(const std::string& folder);
    void endGroup() { runningGroup_.clear(); }
    /// The name of the mark for which `forbidsSending` has said last that it cannot be read.
    const std::string& unusableMark() const { return unusable_; }
    /// Tells each line, no more of them at a time than one box can hold.
    void tell(const std::vector<std::string>& lines) const;

  private:
    /// A box shows so many; what other marks tell comes with the next look.
    static constexpr std::size_t mostAtOnce = 10;

    /// What to tell of a group's files, after doing what can be done; of one that may be running,
    /// nothing is done.
    std::vector<std::string> settleGroup(const std::string& folder, HeldFile& held,
                                         const GroupMark& mark, bool isOver);
    /// Its files that are what has arrived, on the disk too unless it may be running.
    std::set<std::string> wholeFiles(const std::string& folder, const GroupMark& mark, bool isOver);
    /// Notes the files that are about to be mended: whoever ends that in the middle tells of them.
    void noteInterrupted(const std::string& folder, HeldFile& held, const GroupMark& mark);
    std::int16_t forbiddenByGroup(const std::string& folder, const std::string& name);
    /// The same by the content of a mark that another program holds.
    std::int16_t forbiddenBy(const std::string& content, const std::string& name);

    /// What to tell of one file, after doing what can be done.
    std::string settleOne(const std::string& folder, const FetchMark& mark);
    /// What to tell of the mark of this name, which cannot be read; `names` are the folder's.
    std::string describeUnusable(const std::string& name,
                                 const std::vector<std::string>& names) const;
    /// What to tell of one that may be running.
    std::string describe(const std::string& folder, const FetchMark& mark) const;
    std::string bringBack(const std::string& folder, const FetchMark& mark);
    /// Gives what lies under the file's name another one, which is returned; empty when it stays.
    std::string putAway(const std::string& folder, const FetchMark& mark);
    std::string keptAs(const std::string& part) const;
    std::string text(std::int32_t number) const;

    FetchFiles& files_;
    const MessageTable& messages_;
    OperatorTalk& talk_;
    std::set<std::string> told_;         ///< paths of marks that stay, of which the text was read
    std::set<std::string> toldUnusable_; ///< of those that could not be read
    std::string running_;                ///< path of this program's own mark, or empty
    std::string runningGroup_;           ///< of its group's
    std::string unusable_;
    std::string groupContent_; ///< of the group's mark that was read last
    GroupMark group_;          ///< the same
};

} // namespace vantrel
