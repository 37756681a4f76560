#pragma once

#include "link/Zurolink.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vantrel::tests {

/// A robot controller in memory. Names are UTF-8; the directory names the files in the order in
/// which they were put there.
class FakeController {
  public:
    using Variable = std::pair<std::int16_t, std::int16_t>; ///< kind and number

    void put(const std::string& name, const std::string& bytes);
    bool has(const std::string& name) const { return places_.contains(name); }
    /// Empty when it is not there.
    std::string bytes(const std::string& name) const;
    bool erase(const std::string& name);
    std::vector<std::string> names() const;
    bool operator==(const FakeController& other) const;

    /// The entry behind `place`, which is moved on to it; null at the end.
    const std::string* nameAfter(std::int64_t& place) const;

    std::map<Variable, std::array<double, 10>> variables;
    std::size_t endlessNames = 0; ///< the directory goes round so many names and never ends
    bool terminatesNames = true;  ///< a NUL follows each directory entry
    std::string before, behind;   ///< what surrounds each directory entry

  private:
    struct File {
        std::string name;
        std::string bytes;
        bool operator==(const File&) const = default;
    };

    std::map<std::int64_t, File> files_; ///< by the order of arrival, from 1
    std::unordered_map<std::string, std::int64_t> places_;
    std::int64_t lastPlace_ = 0;
};

/// How calls are to go wrong.
struct Disturbance {
    std::string function;     ///< empty: calls are counted over all functions
    int call = 1;             ///< the first call to be disturbed, counted from 1 from now on
    bool fromThereOn = false; ///< every later call too
    bool doNothing = false;   ///< report success and do nothing, instead of failing with `code`
    std::int16_t code = -7;
    /// Transfer only that many bytes, then end with `code`, which may be that of success.
    std::optional<std::size_t> cutTo = {};
};

/// The communication library with controllers in memory, reached by "COM1" or by an address. It
/// reads and writes the real PC folder of `BscOpen`, records every call, and fails a test that
/// misuses it: an unknown handle, a call out of order, two links at a time.
class FakeZurolink : public Zurolink {
  public:
    struct Call {
        std::string function;
        std::string text; ///< with its arguments: "BscOpen(/home/pc, 1)"
        std::int16_t result;
        bool disturbed;
    };

    static constexpr std::int16_t notFound = 1200;
    static constexpr std::int16_t nameInvalid = 1230;
    static constexpr std::int16_t jobExists = 1240;
    static constexpr std::int16_t formatError = 1300;
    static constexpr std::int16_t headerMissing = 1310;
    static constexpr std::int16_t pcFileNotFound = 3020;
    static constexpr std::int16_t pcFolderNotAccessible = 3030;

    FakeController& at(const std::string& line) { return controllers_[line]; }

    void disturb(const Disturbance& disturbance);
    /// No test failure on misuse; it then only makes the calls fail.
    void tolerateMisuse() { strict_ = false; }
    /// For very many calls: they are counted only.
    void recordCalls(bool record) { records_ = record; }
    void forgetCalls();

    const std::vector<Call>& calls() const { return calls_; }
    /// The recorded calls with arguments, one text each.
    std::vector<std::string> trace() const;
    int callCount() const { return total_; }
    int callCount(const std::string& function) const;
    int openLinks() const { return static_cast<int>(links_.size()); }

    std::function<void(const std::string& function)> onCall; ///< before a call does its work
    /// Doubles of rubbish that the library writes behind each buffer that it is given to fill, and
    /// zeros that it wants behind one that it reads.
    std::size_t overrun = 0;

    std::int16_t BscOpen(const char* path, std::int16_t type) override;
    std::int16_t BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                           std::int16_t parity, std::int16_t dataLen,
                           std::int16_t stopBit) override;
    std::int16_t BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                             void* window) override;
    std::int16_t BscConnect(std::int16_t handle) override;
    std::int16_t BscDisConnect(std::int16_t handle) override;
    std::int16_t BscClose(std::int16_t handle) override;
    std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) override;
    std::int16_t BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) override;
    std::int16_t BscDownLoad(std::int16_t handle, const char* file) override;
    std::int16_t BscUpLoad(std::int16_t handle, const char* file) override;
    std::int16_t BscSelectJob(std::int16_t handle, const char* job) override;
    std::int16_t BscDeleteJob(std::int16_t handle) override;
    std::int16_t BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               double* values) override;
    std::int16_t BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               const double* values) override;

  private:
    struct Link {
        std::string folder;
        std::int16_t type = 0;
        std::string line;
        bool connected = false;
        std::int64_t place = 0; ///< of the directory entry told last
        std::string selected;
    };

    /// Counts and records one call, disturbed or done by `work`.
    std::int16_t perform(const char* function, const std::string& arguments, std::int16_t success,
                         const std::function<std::int16_t()>& work);
    /// The same on a link that has to be connected or not.
    std::int16_t onLink(const char* function, std::int16_t handle, const std::string& arguments,
                        std::int16_t success, bool connected,
                        const std::function<std::int16_t(Link&)>& work);
    std::optional<std::int16_t> disturbed(const char* function, std::int16_t success,
                                          const std::function<std::int16_t()>& work);
    /// The bytes that a transfer brings to the other side.
    std::string transferred(const std::string& bytes) const { return bytes.substr(0, cutTo_); }
    std::int16_t misuse(const std::string& what) const;
    std::int16_t writeEntry(Link& link, char* buffer, std::int16_t length);

    std::map<std::string, FakeController> controllers_;
    std::map<std::int16_t, Link> links_;
    std::int16_t lastHandle_ = 0;
    std::string endlessName_;
    std::optional<Disturbance> disturbance_;
    int callsBefore_ = 0;                   ///< the disturbance was ordered
    std::size_t cutTo_ = std::string::npos; ///< bytes that the present transfer brings
    bool strict_ = true;
    bool records_ = true;
    std::vector<Call> calls_;
    std::map<std::string, int> counts_;
    int total_ = 0;
};

} // namespace vantrel::tests
