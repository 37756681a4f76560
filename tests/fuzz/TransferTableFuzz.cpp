#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "files/TransferTable.h"

using namespace vantrel;

// A file's name, then the table; it is read in both of its forms.
VANTREL_FUZZ_TARGET(input) {
    const auto name = input.parameter();
    for (const auto line : lines(input.file())) {
        parseTransferRow(withoutComment(line), TransferTableFormat::Full);
        parseTransferRow(withoutComment(line), TransferTableFormat::Short);
    }
    for (const auto* file : {"FileTable.tbl", "FileTable.dat"}) {
        const auto path = fuzz::folder().write(file, input.file());
        TransferTable table;
        table.load(fuzz::folder().path());
        table.isTransferable(name, true, 1);
        table.isTransferable(name, false, 32);
        std::filesystem::remove(path);
    }
}
