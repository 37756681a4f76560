#include "console/Report.h"

#include "base/Text.h"

#include <utility>

#include <nlohmann/json.hpp>

namespace vantrel {

Report::Report(TextSink output, TextSink messages, bool json)
    : output_(std::move(output)), messages_(std::move(messages)), json_(json) {}

void Report::line(const std::vector<std::string>& cells, const char* type, const Members& members) {
    if (json_)
        return object(type, members);
    std::string joined;
    for (const std::string& cell : cells)
        joined += (joined.empty() ? "" : "\t") + onOneLine(cell);
    output_(joined + "\n");
}

void Report::object(const char* type, const Members& members) {
    if (!json_)
        return;
    nlohmann::ordered_json object{{"vantrelctl", form}, {"type", type}};
    for (const auto& [name, value] : members)
        std::visit([&object, name = name](const auto& held) { object[name] = held; }, value);
    using Handler = nlohmann::ordered_json::error_handler_t;
    output_(object.dump(-1, ' ', false, Handler::replace) + "\n");
}

void Report::message(std::string_view text) {
    note(text);
    object("message", {{"text", std::string(text)}});
}

void Report::note(std::string_view text) {
    std::string shown;
    for (const std::string_view line : lines(text))
        shown += onOneLine(line) + "\n";
    messages_(shown);
}

} // namespace vantrel
