#include "platform/RegistryFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace platform::registry {
namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr std::array<std::pair<std::uint32_t, std::string_view>, 4> kTypeNames{{
    {kString, "string"},
    {kExpandString, "expand"},
    {kBinary, "binary"},
    {kDword, "dword"},
}};

void appendQuoted(std::string& out, std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            out += "\\x";
            out += kDigits[byte >> 4];
            out += kDigits[byte & 0xF];
        } else {
            out += c;
        }
    }
    out += '"';
}

/// Takes a quoted text off the front of `line`; nothing when there is none.
std::optional<std::string> takeQuoted(std::string_view& line) {
    if (line.empty() || line.front() != '"')
        return std::nullopt;
    std::string text;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            line.remove_prefix(i + 1);
            return text;
        }
        if (line[i] != '\\') {
            text += line[i];
        } else if (i + 3 < line.size() && line[i + 1] == 'x') {
            unsigned byte = 0;
            std::from_chars(line.data() + i + 2, line.data() + i + 4, byte, 16);
            text += static_cast<char>(byte);
            i += 3;
        } else if (i + 1 < line.size()) {
            text += line[++i];
        }
    }
    return std::nullopt;
}

std::string bytesOfDword(std::uint32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

std::uint32_t dwordOfBytes(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < std::min<std::size_t>(4, bytes.size()); ++i)
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return number;
}

/// Reads `"Name"=type:data`.
void parseValue(std::string_view line, Values& values) {
    const std::optional<std::string> name = takeQuoted(line);
    if (!name || line.empty() || line.front() != '=')
        return;
    line.remove_prefix(1);
    for (const auto& [type, typeName] : kTypeNames) {
        if (line.substr(0, typeName.size()) != typeName || line.substr(typeName.size(), 1) != ":")
            continue;
        line.remove_prefix(typeName.size() + 1);
        if (type == kDword) {
            std::uint32_t number = 0;
            if (std::from_chars(line.data(), line.data() + line.size(), number, 16).ec == std::errc{})
                values[*name] = {type, bytesOfDword(number)};
        } else if (std::optional<std::string> text = takeQuoted(line)) {
            values[*name] = {type, std::move(*text)};
        }
        return;
    }
}

void appendValue(std::string& out, const std::string& name, const Value& value) {
    for (const auto& [type, typeName] : kTypeNames) {
        if (type != value.type)
            continue;
        appendQuoted(out, name);
        out += '=';
        out += typeName;
        out += ':';
        if (type == kDword) {
            std::array<char, 8> digits{};
            digits.fill('0');
            std::array<char, 8> text{};
            const auto end = std::to_chars(text.data(), text.data() + text.size(), dwordOfBytes(value.bytes), 16).ptr;
            std::copy_backward(text.data(), end, digits.end());
            out.append(digits.data(), digits.size());
        } else {
            appendQuoted(out, value.bytes);
        }
        out += '\n';
    }
}

} // namespace

bool WithoutCase::operator()(std::string_view a, std::string_view b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return lower(x) < lower(y); });
}

Keys parseRegistry(std::string_view text) {
    Keys keys;
    Values* values = nullptr;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.size() > 2 && line.front() == '[' && line.back() == ']')
            values = &keys[std::string(line.substr(1, line.size() - 2))];
        else if (values)
            parseValue(line, *values);
    }
    return keys;
}

std::string printRegistry(const Keys& keys) {
    std::string out;
    for (const auto& [path, values] : keys) {
        out += '[' + path + "]\n";
        for (const auto& [name, value] : values)
            appendValue(out, name, value);
        out += '\n';
    }
    return out;
}

std::string_view hiveName(Hive hive) {
    switch (hive) {
    case Hive::ClassesRoot:
        return "HKEY_CLASSES_ROOT";
    case Hive::CurrentUser:
        return "HKEY_CURRENT_USER";
    case Hive::LocalMachine:
        return "HKEY_LOCAL_MACHINE";
    }
    return "HKEY_CURRENT_USER";
}

std::filesystem::path registryFile() {
    return configurationFolder() / "registry.txt";
}

} // namespace platform::registry
