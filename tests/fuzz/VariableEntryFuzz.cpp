#include "FuzzInput.h"
#include "link/VariableEntry.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    for (const auto line : lines(input.file())) {
        const auto entry = VariableEntry::parse(line);
        if (!entry)
            continue;
        fuzz::require(entry->number >= 0, "a variable's number is not negative");
        const auto again = VariableEntry::parse(entry->format());
        fuzz::require(again && again->format() == entry->format(), "an entry comes back");
    }
}
