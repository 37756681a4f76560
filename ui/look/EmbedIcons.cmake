# Writes OUTPUT, a C++ source with one raw string literal per file of DRAWINGS, a list with "|"
# between, sorted by key; see ui/look/IconSet.h.
string(REPLACE "|" ";" drawings "${DRAWINGS}")
list(SORT drawings)

set(rows "")
foreach(drawing IN LISTS drawings)
    get_filename_component(key "${drawing}" NAME_WE)
    file(READ "${drawing}" svg)
    string(APPEND rows "    {\"${key}\", R\"svg(${svg})svg\"},\n")
endforeach()

file(WRITE "${OUTPUT}" "#include \"ui/look/IconSet.h\"

namespace vantrel {
namespace {

constexpr IconDrawing drawings[] = {
${rows}};

} // namespace

std::span<const IconDrawing> iconDrawings() {
    return drawings;
}

} // namespace vantrel
")
