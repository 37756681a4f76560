#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

namespace vantrel::tests {

/// While this lives, permissions bind the test as they bind an operator: as root, whom they do not
/// stop, it works on files as nobody, who owns none of them.
class BoundByPermissions {
  public:
    BoundByPermissions() {
        if (isRoot())
            ::setfsuid(nobody);
    }
    ~BoundByPermissions() {
        if (isRoot())
            ::setfsuid(0);
    }
    BoundByPermissions(const BoundByPermissions&) = delete;
    BoundByPermissions& operator=(const BoundByPermissions&) = delete;

    /// Whether files that the test has made are somebody else's for the one it works as.
    static bool isRoot() { return ::geteuid() == 0; }

  private:
    static constexpr uid_t nobody = 65534;
};

} // namespace vantrel::tests
