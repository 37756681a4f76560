#include "FuzzInput.h"
#include "link/JobFile.h"
#include "link/JobNameSet.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    const auto name = jobNameInside(input.file()).text;
    fuzz::require(isValidUtf8(name), "a job's name is valid UTF-8");
    fuzz::require(name == trimmed(name), "a job's name has no outer blanks");

    JobNameSet directory;
    directory.insert(name + ".JBI");
    fuzz::require(directory.hasFile(name + ".jbi"), "names are found in any letter case");
}
