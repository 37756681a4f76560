#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vantrel {

/// Takes UTF-8 text on its way out.
using TextSink = std::function<void(std::string_view text)>;

/// What the program says: lines of its output, which are objects where JSON was asked for, and
/// messages. Texts may hold anything; what comes out is always valid UTF-8, a line each.
class Report {
  public:
    using Value = std::variant<bool, std::int64_t, std::string, std::vector<std::string>>;
    /// The members of an object in their order; names are English whatever the language.
    using Members = std::vector<std::pair<const char*, Value>>;

    /// The number of the form of the objects. Members may be added without a new one.
    static constexpr std::int64_t form = 1;

    Report(TextSink output, TextSink messages, bool json);

    /// The cells of a plain line, parted by tabs, or an object of this type.
    void line(const std::vector<std::string>& cells, const char* type, const Members& members);
    /// An object without a plain line.
    void object(const char* type, const Members& members);
    /// For the operator, in several lines perhaps. With JSON it is an object as well.
    void message(std::string_view text);
    /// For him alone.
    void note(std::string_view text);
    /// Plain output as it stands.
    void text(std::string_view text) { output_(text); }

    bool isJson() const { return json_; }

  private:
    TextSink output_;
    TextSink messages_;
    bool json_;
};

} // namespace vantrel
