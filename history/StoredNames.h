#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// How the history writes names that came from a controller or an operator, in both directions.
/// What some system's disk or Git cannot hold is written as "%" and two hexadecimal digits for each
/// byte of UTF-8: control characters, `" * / : < > ? \ | ~ %`, a point at the beginning, a point or
/// blank at the end, the first letter of a reserved device name, and bytes that are no UTF-8. So
/// one repository can be looked at on every system, and every name comes back as it was.
std::string storedName(std::string_view name);
/// The name that such a text stands for; a "%" without two hexadecimal digits stays.
std::string nameFromStored(std::string_view stored);

/// Where one folder's names are stored. Names that differ in letter case only get places that
/// differ otherwise too, since many disks take them for one; a name that the history has keeps its
/// place.
class StoredPlaces {
  public:
    /// `places` are those that the history has already, `others` those of what is none of ours.
    explicit StoredPlaces(const std::vector<std::string>& places,
                          const std::vector<std::string>& others = {});

    /// Empty when the name is too long for a disk.
    std::string placeFor(const std::string& name);

    /// Bytes. The systems take 255; a file that is being replaced takes some of them for a while.
    static constexpr std::size_t longest = 240;

  private:
    std::map<std::string, std::string> placeOf_{};
    std::set<std::string> taken_{}; ///< places in capital letters
};

} // namespace vantrel
