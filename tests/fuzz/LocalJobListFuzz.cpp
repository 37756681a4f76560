#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "link/JobLists.h"

#include <algorithm>

using namespace vantrel;

// A controller's entry, then the list.
VANTREL_FUZZ_TARGET(input) {
    const auto entry = input.parameter();
    fuzz::folder().write("LocalJob.lst", input.file());
    LocalJobList list;
    list.read(fuzz::folder().path());
    list.contains(entry);

    constexpr const char* wildcards = "*?#[";
    const auto isContained = [&](const std::string& each) {
        return each.find_first_of(wildcards) != std::string::npos || list.contains(each);
    };
    fuzz::require(std::all_of(list.entries().begin(), list.entries().end(), isContained),
                  "a plain entry is in its list");
}
