#pragma once

#include "platform/Registry.h"

#include <QString>
#include <QVariant>

/// The thin layer through which the application reads and writes the registry. Nothing here reports a failure to the
/// user: a missing key, a missing value and a refused access read as the empty variant, and each caller decides what
/// that means. Thread: the user interface's thread.

using platform::registry::Hive;

/// The application's own keys stand under HKEY_CLASSES_ROOT, not under a user's hive.
inline constexpr char kSettingsKey[] = "Microsoft\\Application\\Tavrelion\\Settings";

/// Makes a key and its parents; an existing one is left as it is.
void CreateKey(Hive hive, const QString& path);

/// Writes a value under a key that exists. Types other than string and 32-bit number write nothing and give 0.
/// Returns: the system's status, 0 on success.
platform::registry::Status WriteKeyValue(Hive hive, const QString& path, const QString& name, const QVariant& value,
                                         std::uint32_t type);

/// Reads a value: a text (with the terminator that its writer counted, if any), a 32-bit signed number, or the empty
/// variant.
QVariant ReadKeyValue(Hive hive, const QString& path, const QString& name);

/// Writes through an open key; see WriteKeyValue().
platform::registry::Status RegWriteValue(platform::registry::Key key, const QString& name, std::uint32_t type,
                                         const QVariant& value);

/// Reads through an open key. `value` is left untouched on failure. Returns: the status of the last call of the system,
/// or -1 for a type that is not read.
platform::registry::Status RegReadValue(platform::registry::Key key, const QString& name, QVariant& value);
