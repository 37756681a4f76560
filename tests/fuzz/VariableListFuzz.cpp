#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"
#include "link/VariableList.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    SessionProperties properties;
    properties.path = fuzz::folder().path();
    SessionErrorRecord error;
    VariableList list(properties, error);
    list.setFile("variables.lst");

    fuzz::folder().write("variables.lst", input.file());
    fuzz::require(list.read(), "any regular file is a list");
    const auto before = list.entries().all();
    if (list.write("variables.lst"))
        fuzz::require(list.read() && list.entries().all() == before, "a list comes back");
}
