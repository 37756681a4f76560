#pragma once

#include <wx/defs.h>

namespace vantrel {

/// The border of a list or tree that stands as a field. Those of the GTK port are drawn by the
/// toolkit and have no themed border of their own.
#ifdef __WXGTK__
inline constexpr long fieldBorder = wxBORDER_SIMPLE;
#else
inline constexpr long fieldBorder = wxBORDER_THEME;
#endif

} // namespace vantrel
