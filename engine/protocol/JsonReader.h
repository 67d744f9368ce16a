#pragma once

#include "protocol/ProtocolError.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

namespace orvane::protocol {

/// The closed list of values of an enumeration with the names they travel under.
template<typename Enum, std::size_t size>
using EnumNames = std::array<std::pair<Enum, const char*>, size>;

template<typename Enum, std::size_t size>
constexpr const char* nameOf(const EnumNames<Enum, size>& names, Enum value) {
    for (const auto& [candidate, name] : names)
        if (candidate == value)
            return name;
    return "";
}

template<typename Enum, std::size_t size>
std::optional<Enum> valueOf(const EnumNames<Enum, size>& names, std::string_view text) {
    for (const auto& [value, name] : names)
        if (text == name)
            return value;
    return std::nullopt;
}

/// Both ends belong to the range.
struct IntegerRange {
    long long least = 0;
    long long most = 0;
};

/// Errors: ProtocolError when `line` is not one JSON object.
nlohmann::json parseObject(std::string_view line);

/// Takes a JSON object apart, field by field. Each field must be there, with the type and the range asked for, and none
/// may be there that was not asked for. Errors: all members throw ProtocolError that names the object and the field.
class JsonReader {
public:
    /// Requires: `object` outlives the reader. `what` stands in error messages.
    JsonReader(const nlohmann::json& object, std::string what);

    std::string text(const char* field);
    long long longInteger(const char* field, IntegerRange range);
    int integer(const char* field, IntegerRange range) { return static_cast<int>(longInteger(field, range)); }
    double number(const char* field);
    bool boolean(const char* field);
    const nlohmann::json& array(const char* field);

    template<typename Enum, std::size_t size>
    Enum name(const char* field, const EnumNames<Enum, size>& names) {
        const std::string found = text(field);
        if (const auto value = valueOf(names, found))
            return *value;
        refuse(field, "has an unknown name");
    }

    void requireNothingElse() const;

private:
    const nlohmann::json& value(const char* field);
    [[noreturn]] void refuse(const char* field, const char* why) const;

    const nlohmann::json& m_object;
    std::string m_what;
    std::size_t m_read = 0; // fields asked for so far; each is asked for once
};

} // namespace orvane::protocol
