#pragma once

#include <string>
#include <utility>
#include <variant>

namespace vantrel {

/// Why something that may well fail did fail, in words for the operator (UTF-8): the system's own
/// reason, such as "No such file or directory".
struct Failure {
    std::string reason;
};

/// A value or the reason why there is none.
template <typename Value>
class Result {
  public:
    Result(Value value) : content_(std::move(value)) {}
    Result(Failure failure) : content_(std::move(failure)) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content_); }
    Value& operator*() { return std::get<Value>(content_); }
    const Value& operator*() const { return std::get<Value>(content_); }
    Value* operator->() { return &std::get<Value>(content_); }
    const Value* operator->() const { return &std::get<Value>(content_); }
    const std::string& reason() const { return std::get<Failure>(content_).reason; }

  private:
    std::variant<Value, Failure> content_;
};

struct Done {};
/// The outcome of an action without a value.
using Outcome = Result<Done>;

} // namespace vantrel
