#pragma once

class wxChoice;

namespace vantrel {

/// Makes keys and the wheel open the list of a closed choice in place of changing it: passing by an
/// entry is no choice, only a press on it or Enter in the open list is.
void chooseInOpenListOnly(wxChoice& choice);

/// Shows the list of a choice.
void openList(wxChoice& choice);

/// Whether that list is shown now. On some systems the choice gets the keys meant for it.
bool isListOpen(const wxChoice& choice);

} // namespace vantrel
