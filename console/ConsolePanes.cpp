#include "console/ConsolePanes.h"

#include "files/PaneRows.h"

namespace vantrel {

void ConsoleList::show(const PaneRows& rows) {
    selected_.clear();
    if (rows.size() > 0)
        selected_.push_back(0);
}

std::optional<std::size_t> ConsoleList::selectedRow() const {
    return selected_.empty() ? std::nullopt : std::optional(selected_.front());
}

} // namespace vantrel
