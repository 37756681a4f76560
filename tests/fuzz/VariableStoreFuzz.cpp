#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "simulator/VariableStore.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    simulator::VariableStore store(fuzz::folder().write("variables.txt", input.file()));
    fuzz::require(static_cast<bool>(store.load()), "any regular file is a store");
    fuzz::require(static_cast<bool>(store.save()), "a store can be written");
    const auto first = fuzz::folder().read("variables.txt");

    fuzz::require(store.load() && store.save(), "what was written is read");
    fuzz::require(fuzz::folder().read("variables.txt") == first, "a written store stays as it is");
}
