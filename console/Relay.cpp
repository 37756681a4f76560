#include "console/Relay.h"

#include "base/Text.h"

#include <nlohmann/json.hpp>

namespace vantrel {
namespace {

using Kind = Relayed::Kind;
using Json = nlohmann::ordered_json;

constexpr int itemEnds = 4;
constexpr const char* keys[] = {"output", "message", "item", "end"};

/// A member's value where it has this type, or what it has by itself.
template <typename Value>
Value valueOf(const Json& object, const char* key, Value value) {
    const auto found = object.find(key);
    const bool fits =
        found != object.end() &&
        (std::is_same_v<Value, int> ? found->is_number_integer() : found->is_string());
    return fits ? found->template get<Value>() : value;
}

} // namespace

std::string relayLine(const Relayed& relayed) {
    const Json object{{"relay", keys[static_cast<std::size_t>(relayed.kind)]},
                      {"text", relayed.text},
                      {"ended", static_cast<int>(relayed.end)},
                      {"code", relayed.code}};
    return "\n" + object.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::optional<Relayed> readRelayLine(std::string_view line) {
    const Json object = Json::parse(line, nullptr, false);
    if (!object.is_object())
        return std::nullopt;
    const auto named = valueOf<std::string>(object, "relay", {});
    const auto* const key = std::ranges::find(keys, named);
    const int end = valueOf(object, "ended", -1);
    if (key == std::end(keys) || end < 0 || end >= itemEnds)
        return std::nullopt;
    return Relayed{.kind = static_cast<Kind>(key - std::begin(keys)),
                   .text = valueOf<std::string>(object, "text", {}),
                   .end = static_cast<ItemEnd>(end),
                   .code = valueOf(object, "code", 0)};
}

ConsoleWorld relayingWorld(ConsoleWorld world) {
    const TextSink output = std::move(world.output);
    world.output = [output](std::string_view text) {
        output(relayLine({.kind = Kind::Output, .text = std::string(text)}));
    };
    world.messages = [output](std::string_view text) {
        output(relayLine({.kind = Kind::Message, .text = std::string(text)}));
    };
    world.relay = output;
    world.showsProgress = false;
    world.readLine = nullptr;
    return world;
}

} // namespace vantrel
