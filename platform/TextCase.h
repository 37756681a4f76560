#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace vantrel {

/// Every character to upper case one to one by the Unicode simple mapping, whatever the locale.
std::string upperCase(std::string_view utf8);
std::string lowerCase(std::string_view utf8);

/// `upperCase` for many texts: what the system needs for it is opened once, by the first text that
/// needs it.
class UpperCaseMapping {
  public:
    UpperCaseMapping();
    ~UpperCaseMapping();
    UpperCaseMapping(const UpperCaseMapping&) = delete;
    UpperCaseMapping& operator=(const UpperCaseMapping&) = delete;

    std::string of(std::string_view utf8);

  private:
    struct Opened;
    std::unique_ptr<Opened> opened_;
};

/// The form in which job names are compared: upper case, but the 24 lower-case Greek letters
/// "αβγδεζηθικλμνξοπρστυφχψω" stay.
std::string normalisedJobName(std::string_view name);

} // namespace vantrel
