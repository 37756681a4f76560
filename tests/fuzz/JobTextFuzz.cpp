#include "FuzzInput.h"
#include "simulator/ControllerFileName.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    const auto name = simulator::jobNameIn(input.file());
    if (name)
        fuzz::require(name->find('/') == std::string::npos, "a job's name is no path");
}
