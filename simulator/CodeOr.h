#pragma once

#include <cstdint>
#include <utility>
#include <variant>

namespace vantrel::simulator {

/// A value, or the code of `ResultCodes.h` that says why there is none.
template <typename Value>
class CodeOr {
  public:
    CodeOr(Value value) : content_(std::move(value)) {}
    CodeOr(std::int16_t code) : content_(code) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content_); }
    const Value& operator*() const { return std::get<Value>(content_); }
    const Value* operator->() const { return &std::get<Value>(content_); }
    std::int16_t code() const { return std::get<std::int16_t>(content_); }

  private:
    std::variant<Value, std::int16_t> content_;
};

} // namespace vantrel::simulator
