#pragma once

class wxTextCtrl;
class wxTopLevelWindow;

namespace vantrel {

/// Makes a window as large as its contents ask for, and no smaller from then on.
void fitToContents(wxTopLevelWindow& window);

/// Makes a field as wide as its longest text asks for in its font.
void makeRoomFor(wxTextCtrl& field, const char* longestText);

} // namespace vantrel
