#include "services/RegistryStore.h"

#include <cstring>

namespace registry = platform::registry;

namespace {

std::string toAnsi(const QString& text) {
    return text.toLocal8Bit().toStdString();
}
QString fromAnsi(const std::string& bytes) {
    return QString::fromLocal8Bit(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

constexpr registry::Status kTypeNotRead = -1;
constexpr std::size_t kExpansionReserve = 400; // characters beyond the stored text that an expansion may add

std::string bytesOf(std::int32_t number) {
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

std::int32_t numberOf(const std::string& bytes) {
    std::int32_t number = 0;
    std::memcpy(&number, bytes.data(), std::min(sizeof number, bytes.size()));
    return number;
}

} // namespace

void CreateKey(Hive hive, const QString& path) {
    registry::Key key = 0;
    registry::createKey(hive, toAnsi(path), registry::kAllAccess, key);
    registry::closeKey(key);
}

registry::Status WriteKeyValue(Hive hive, const QString& path, const QString& name, const QVariant& value,
                               std::uint32_t type) {
    registry::Key key = 0;
    registry::openKey(hive, toAnsi(path), registry::kAllAccess, key);
    const registry::Status status = RegWriteValue(key, name, type, value);
    registry::closeKey(key);
    return status;
}

QVariant ReadKeyValue(Hive hive, const QString& path, const QString& name) {
    QVariant value;
    registry::Key key = 0;
    registry::openKey(hive, toAnsi(path), registry::kQueryValue, key);
    RegReadValue(key, name, value);
    registry::closeKey(key);
    return value;
}

registry::Status RegWriteValue(registry::Key key, const QString& name, std::uint32_t type, const QVariant& value) {
    switch (type) {
    case registry::kString:
        // As many bytes as the text has characters: no terminator is counted.
        return registry::setValue(key, toAnsi(name), {type, toAnsi(value.toString())});
    case registry::kDword:
        return registry::setValue(key, toAnsi(name), {type, bytesOf(value.toInt())});
    default:
        return registry::kSuccess;
    }
}

registry::Status RegReadValue(registry::Key key, const QString& name, QVariant& value) {
    registry::Value stored;
    const registry::Status status = registry::queryValue(key, toAnsi(name), stored);
    if (status != registry::kSuccess)
        return status;

    switch (stored.type) {
    case registry::kString:
        value = fromAnsi(stored.bytes);
        return status;
    case registry::kExpandString: {
        if (!stored.bytes.empty())
            stored.bytes.pop_back(); // the terminator; the expansion brings its own
        const std::string expanded = registry::expandEnvironment(stored.bytes, stored.bytes.size() + kExpansionReserve);
        value = expanded.empty() ? QVariant() : QVariant(fromAnsi(expanded));
        return status;
    }
    case registry::kDword:
        value = numberOf(stored.bytes);
        return status;
    default:
        return kTypeNotRead;
    }
}
