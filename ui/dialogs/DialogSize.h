#pragma once

class wxTopLevelWindow;

namespace vantrel {

/// Makes a window as large as its contents ask for, and no smaller from then on.
void fitToContents(wxTopLevelWindow& window);

} // namespace vantrel
