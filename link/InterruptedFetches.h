#pragma once

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
struct FetchMark;

/// Files whose transfer to the PC ended with the program, by a power cut or because it was killed.
/// Their marks (`FetchMark`) tell of them at the next look at the folder, whoever looks: the old
/// version gets its name back, what had arrived is put away under a name that is no job's, and the
/// operator is told. Nothing is ever deleted but the mark, and that only after the operator was
/// told. The mark of a transfer that is running, here or in another program, is held and so left
/// alone. Where the disk does not tell whether it is, nothing is touched, and the operator is told
/// that the file may be incomplete. What lies under a mark's name and cannot be read as one is told
/// once as well, and the file that it stands for is not sent until somebody has removed it.
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
    /// Whether the operator was told of a transfer whose mark still lies there.
    bool isTold(const std::string& folder, const std::string& name) const;
    /// This program's own transfer, of which nothing is told while it runs.
    void begin(const std::string& folder, const std::string& name);
    void end() { running_.clear(); }

  private:
    /// A box shows so many; the others come with the next look.
    static constexpr std::size_t mostAtOnce = 10;

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
};

} // namespace vantrel
