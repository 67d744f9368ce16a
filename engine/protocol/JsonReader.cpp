#include "protocol/JsonReader.h"

#include <cmath>

#include <fmt/format.h>

namespace orvane::protocol {

nlohmann::json parseObject(std::string_view line) {
    nlohmann::json object = nlohmann::json::parse(line, nullptr, /*allow_exceptions=*/false);
    if (!object.is_object())
        throw ProtocolError("the line is not a JSON object");
    return object;
}

JsonReader::JsonReader(const nlohmann::json& object, std::string what)
    : m_object(object)
    , m_what(std::move(what)) {
    if (!object.is_object())
        throw ProtocolError(fmt::format("{} is not an object", m_what));
}

void JsonReader::refuse(const char* field, const char* why) const {
    throw ProtocolError(fmt::format("{}: the field \"{}\" {}", m_what, field, why));
}

const nlohmann::json& JsonReader::value(const char* field) {
    const auto found = m_object.find(field);
    if (found == m_object.end())
        refuse(field, "is missing");
    ++m_read;
    return *found;
}

std::string JsonReader::text(const char* field) {
    const nlohmann::json& found = value(field);
    if (!found.is_string())
        refuse(field, "is not a text");
    return found.get<std::string>();
}

long long JsonReader::longInteger(const char* field, IntegerRange range) {
    const nlohmann::json& found = value(field);
    if (!found.is_number_integer())
        refuse(field, "is not an integer");
    // A number past the signed range is held as unsigned, and would turn negative when read as signed.
    const bool isTooLarge = found.is_number_unsigned() && found.get<unsigned long long>() > 0x7fffffffffffffffULL;
    if (isTooLarge || found.get<long long>() < range.least || found.get<long long>() > range.most)
        refuse(field, "is out of range");
    return found.get<long long>();
}

double JsonReader::number(const char* field) {
    const nlohmann::json& found = value(field);
    if (!found.is_number() || !std::isfinite(found.get<double>()))
        refuse(field, "is not a number");
    return found.get<double>();
}

bool JsonReader::boolean(const char* field) {
    const nlohmann::json& found = value(field);
    if (!found.is_boolean())
        refuse(field, "is neither true nor false");
    return found.get<bool>();
}

const nlohmann::json& JsonReader::array(const char* field) {
    const nlohmann::json& found = value(field);
    if (!found.is_array())
        refuse(field, "is not a list");
    return found;
}

void JsonReader::requireNothingElse() const {
    if (m_object.size() != m_read)
        throw ProtocolError(fmt::format("{} has fields that are not known", m_what));
}

} // namespace orvane::protocol
