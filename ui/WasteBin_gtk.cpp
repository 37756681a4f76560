#include "ui/WasteBin.h"

#include <memory>

#include <gio/gio.h>

namespace vantrel {

Outcome moveToWasteBin(const std::string& path) {
    const std::unique_ptr<GFile, decltype(&g_object_unref)> file(g_file_new_for_path(path.c_str()),
                                                                 &g_object_unref);
    GError* error = nullptr;
    if (g_file_trash(file.get(), nullptr, &error))
        return Done{};
    std::string reason = error ? error->message : "";
    g_clear_error(&error);
    return Failure{std::move(reason)};
}

} // namespace vantrel
