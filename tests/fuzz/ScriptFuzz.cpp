#include "FuzzInput.h"
#include "simulator/Script.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    using simulator::Script;
    Script script;
    for (const auto row : lines(input.file()))
        script.addRow(row);
    for (std::size_t function = 0; function < simulator::functionCount; ++function) {
        const auto what = script.next(static_cast<simulator::Function>(function));
        fuzz::require(what.delay.count() >= 0 && what.delay <= Script::longestDelay,
                      "a delay stays within its bounds");
    }
}
