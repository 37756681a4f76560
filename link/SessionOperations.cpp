#include "link/SessionOperations.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "link/Snappy.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

namespace vantrel {
namespace {

using Arguments = std::vector<SessionValue>;

/// Argument `at` as an operation's parameter of this type, or nothing when it does not convert.
/// Truth values may be left out and are false then; lists only go out.
template <typename Type>
std::optional<Type> parameter(const Arguments& arguments, std::size_t at) {
    const SessionValue value = at < arguments.size() ? arguments[at] : SessionValue();
    const bool given = !std::holds_alternative<std::monostate>(value);
    if constexpr (std::is_same_v<Type, std::vector<std::string>>)
        return Type();
    else if constexpr (std::is_same_v<Type, bool>)
        return given ? flagFrom(value) : false;
    else if constexpr (std::is_same_v<Type, std::string>)
        return given ? std::optional(textFrom(value)) : std::nullopt;
    else if constexpr (std::is_same_v<Type, std::int16_t>)
        return integer16From(value);
    else
        return integer32From(value);
}

SessionValue outValue(const std::string& text) {
    return text;
}

SessionValue outValue(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += onOneLine(name) + "\n";
    return text;
}

/// Gives an argument back to the caller when the operation takes it by reference to change it.
template <typename Declared, typename Type>
void giveBack(Arguments& arguments, std::size_t at, const Type& value) {
    if constexpr (std::is_same_v<Declared, Type&>) {
        arguments.resize(std::max(arguments.size(), at + 1));
        arguments[at] = outValue(value);
    }
}

/// Converts the arguments one by one, calls the operation, and gives its out arguments back.
template <typename Returned, typename... Declared, std::size_t... At, typename Method>
Result<SessionValue> invoke(Snappy& session, Method method, Arguments& arguments,
                            std::index_sequence<At...>) {
    std::tuple<std::optional<std::remove_cvref_t<Declared>>...> taken{
        parameter<std::remove_cvref_t<Declared>>(arguments, At)...};
    if (!(std::get<At>(taken) && ...))
        return Failure{"an argument is missing or of the wrong kind"};
    SessionValue result;
    if constexpr (std::is_void_v<Returned>)
        (session.*method)(*std::get<At>(taken)...);
    else
        result = toSessionValue((session.*method)(*std::get<At>(taken)...));
    (giveBack<Declared>(arguments, At, *std::get<At>(taken)), ...);
    return result;
}

template <typename Returned, typename... Declared>
Result<SessionValue> dispatch(Snappy& session, Returned (Snappy::*method)(Declared...),
                              Arguments& arguments) {
    return invoke<Returned, Declared...>(session, method, arguments,
                                         std::index_sequence_for<Declared...>());
}

template <typename Returned, typename... Declared>
Result<SessionValue> dispatch(Snappy& session, Returned (Snappy::*method)(Declared...) const,
                              Arguments& arguments) {
    return invoke<Returned, Declared...>(session, method, arguments,
                                         std::index_sequence_for<Declared...>());
}

template <typename Type>
constexpr bool isList = std::is_same_v<std::remove_cvref_t<Type>, std::vector<std::string>>;

template <typename Declared>
void describeParameter(SessionForm& form) {
    using Type = std::remove_cvref_t<Declared>;
    using Kind = SessionForm::Kind;
    if constexpr (isList<Declared>)
        return;
    else if constexpr (std::is_same_v<Type, bool>)
        form.parameters.push_back({.kind = Kind::Flag, .isOptional = true});
    else
        form.parameters.push_back(
            {.kind = std::is_same_v<Type, std::string> ? Kind::Text : Kind::Number,
             .isGivenBack = std::is_same_v<Declared, Type&>});
}

template <typename... Declared>
bool accepts(const Arguments& arguments) {
    std::size_t at = 0;
    return (parameter<std::remove_cvref_t<Declared>>(arguments, at++).has_value() && ...);
}

/// What a method's type says of it.
template <typename Returned, typename... Declared>
struct Signature {
    static SessionForm form(std::string_view name) {
        SessionForm form{.name = std::string(name), .saysSuccess = std::is_same_v<Returned, bool>};
        (describeParameter<Declared>(form), ...);
        return form;
    }
    static bool takes(const Arguments& arguments) { return accepts<Declared...>(arguments); }
};

template <typename Returned, typename... Declared>
Signature<Returned, Declared...> signatureOf(Returned (Snappy::*)(Declared...)) {
    return {};
}

template <typename Returned, typename... Declared>
Signature<Returned, Declared...> signatureOf(Returned (Snappy::*)(Declared...) const) {
    return {};
}

/// A row of the table of operations.
struct Operation {
    std::string_view name;
    Result<SessionValue> (*call)(Snappy&, Arguments&);
    SessionForm (*form)(std::string_view name);
    bool (*takes)(const Arguments&);
};

/// A row of the table of properties; `set` is false when the value does not convert.
struct Property {
    std::string_view name;
    SessionValue (*get)(const Snappy&);
    bool (*set)(Snappy&, const SessionValue&);
    SessionForm (*form)(std::string_view name);
    bool (*takes)(const Arguments&);
};

template <auto Method>
Result<SessionValue> callOperation(Snappy& session, Arguments& arguments) {
    return dispatch(session, Method, arguments);
}

template <auto Field>
SessionValue getProperty(const Snappy& session) {
    return toSessionValue(session.*Field);
}

template <auto Field>
bool setProperty(Snappy& session, const SessionValue& value) {
    if (std::holds_alternative<std::monostate>(value))
        return false;
    using Type = std::remove_cvref_t<decltype(session.*Field)>;
    auto converted = parameter<Type>({value}, 0);
    if (converted)
        session.*Field = std::move(*converted);
    return converted.has_value();
}

/// A property's value may be left out: it is read then.
template <auto Field>
SessionForm formOfProperty(std::string_view name) {
    SessionForm form{.name = std::string(name)};
    describeParameter<std::remove_cvref_t<decltype(std::declval<Snappy>().*Field)>>(form);
    form.parameters.front().isOptional = true;
    return form;
}

template <auto Field>
bool propertyTakes(const Arguments& arguments) {
    return arguments.empty() ||
           accepts<std::remove_cvref_t<decltype(std::declval<Snappy>().*Field)>>(arguments);
}

#define VANTREL_PROPERTY(name)                                                                     \
    {                                                                                              \
#name, getProperty < &Snappy::name>, setProperty < &Snappy::name>,                         \
            formOfProperty < &Snappy::name>, propertyTakes < &Snappy::name>                        \
    }
#define VANTREL_OPERATION(name)                                                                    \
    {                                                                                              \
#name, callOperation < &Snappy::name>, decltype(signatureOf(&Snappy::name))::form,         \
            decltype(signatureOf(&Snappy::name))::takes                                            \
    }

constexpr Property properties[] = {
    VANTREL_PROPERTY(port),           VANTREL_PROPERTY(Baudrate),     VANTREL_PROPERTY(parity),
    VANTREL_PROPERTY(DataLen),        VANTREL_PROPERTY(StopBit),      VANTREL_PROPERTY(path),
    VANTREL_PROPERTY(DisplayMonitor), VANTREL_PROPERTY(MonitorTitle), VANTREL_PROPERTY(IPaddress),
};

constexpr Operation operations[] = {
    VANTREL_OPERATION(JobListCount),     VANTREL_OPERATION(VarListCount),
    VANTREL_OPERATION(ErrorCode),        VANTREL_OPERATION(ErrorFunction),
    VANTREL_OPERATION(ErrorIndex),       VANTREL_OPERATION(GetCTRLError),
    VANTREL_OPERATION(JobList),          VANTREL_OPERATION(VarList),
    VANTREL_OPERATION(ReadDirectory),    VANTREL_OPERATION(JobDownLoad),
    VANTREL_OPERATION(JobDelete),        VANTREL_OPERATION(JobUpLoad),
    VANTREL_OPERATION(JobListDownLoad),  VANTREL_OPERATION(JobListUpLoad),
    VANTREL_OPERATION(AddJobList),       VANTREL_OPERATION(JobListClear),
    VANTREL_OPERATION(RemoveJobList),    VANTREL_OPERATION(SetJobListFile),
    VANTREL_OPERATION(SetVarListFile),   VANTREL_OPERATION(ReadVarListFile),
    VANTREL_OPERATION(VarListClear),     VANTREL_OPERATION(AddVarList),
    VANTREL_OPERATION(RemoveVarList),    VANTREL_OPERATION(SetLangageMode),
    VANTREL_OPERATION(VarDownLoad),      VANTREL_OPERATION(VarUpLoad),
    VANTREL_OPERATION(VarListDownLoad),  VANTREL_OPERATION(VarListUpLoad),
    VANTREL_OPERATION(WriteVarListFile), VANTREL_OPERATION(Quit),
    VANTREL_OPERATION(SetTansMode),
};

#undef VANTREL_PROPERTY
#undef VANTREL_OPERATION

template <typename Row, std::size_t count>
const Row* findRow(const Row (&rows)[count], std::string_view name) {
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [name](const Row& row) { return row.name == name; });
    return found == std::end(rows) ? nullptr : found;
}

Failure unknownName(std::string_view name) {
    return Failure{"unknown name: " + std::string(name)};
}

} // namespace

SessionValue toSessionValue(bool value) {
    return value ? 1.0 : 0.0;
}

SessionValue toSessionValue(std::int32_t value) {
    return static_cast<double>(value);
}

SessionValue toSessionValue(const std::string& value) {
    return value;
}

std::optional<double> numberFrom(const SessionValue& value) {
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* text = std::get_if<std::string>(&value))
        return wholeNumber(*text);
    return {};
}

std::optional<std::int32_t> integer32From(const SessionValue& value) {
    const auto number = numberFrom(value);
    return number ? rounded32(*number) : std::nullopt;
}

std::optional<std::int16_t> integer16From(const SessionValue& value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const auto number = integer32From(value);
    if (!number || *number < Limits::min() || *number > Limits::max())
        return {};
    return static_cast<std::int16_t>(*number);
}

std::optional<bool> flagFrom(const SessionValue& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        return truthValue(*text);
    const auto number = numberFrom(value);
    if (!number || std::isnan(*number))
        return {};
    return *number != 0;
}

std::string textFrom(const SessionValue& value) {
    if (const auto* number = std::get_if<double>(&value))
        return generalText(*number);
    const auto* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

Result<SessionValue> SessionOperations::call(std::string_view name,
                                             std::vector<SessionValue>& arguments) {
    if (const Operation* const operation = findRow(operations, name))
        return operation->call(session_, arguments);
    if (arguments.empty())
        return get(name);
    const Outcome outcome = set(name, arguments.front());
    if (!outcome)
        return Failure{outcome.reason()};
    return SessionValue();
}

Result<SessionValue> SessionOperations::get(std::string_view property) const {
    const Property* const found = findRow(properties, property);
    if (!found)
        return unknownName(property);
    return found->get(session_);
}

Outcome SessionOperations::set(std::string_view property, const SessionValue& value) {
    const Property* const found = findRow(properties, property);
    if (!found)
        return unknownName(property);
    if (!found->set(session_, value))
        return Failure{"the value does not convert"};
    return Done{};
}

std::vector<std::string> SessionOperations::names() {
    std::vector<std::string> all;
    for (SessionForm& form : forms())
        all.push_back(std::move(form.name));
    return all;
}

std::vector<SessionForm> SessionOperations::forms() {
    std::vector<SessionForm> all;
    for (const Property& property : properties)
        all.push_back(property.form(property.name));
    for (const Operation& operation : operations)
        all.push_back(operation.form(operation.name));
    return all;
}

Outcome SessionOperations::check(std::string_view name,
                                 const std::vector<SessionValue>& arguments) {
    const auto judge = [&](const auto* row) -> Outcome {
        if (arguments.size() > row->form(name).parameters.size())
            return Failure{"too many arguments"};
        if (!row->takes(arguments))
            return Failure{"an argument is missing or of the wrong kind"};
        return Done{};
    };
    if (const Operation* const operation = findRow(operations, name))
        return judge(operation);
    if (const Property* const property = findRow(properties, name))
        return judge(property);
    return unknownName(name);
}

} // namespace vantrel
