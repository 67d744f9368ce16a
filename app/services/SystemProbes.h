#pragma once

#include "platform/SystemVersion.h"

#include <QString>

#include <cstdint>

/// Small probes of the machine that several windows ask. The word-processor probes read the registry, where the word
/// processor's installer (or, where there is none, registerWordProcessor()) leaves the folder of each release.

/// The name of an old release of Windows ("95", "98", "ME", "3.51", "4.0", "2000", "WinXP/NT Server"), an empty text
/// for a later one, "Failed" for another system.
QString GetOSVersion(const platform::SystemVersion& version);
/// The same for this machine. Errors: logged; an empty text.
QString GetOSVersion();

/// 1 when a release 9.0 to 12.0 or 14.0 of the word processor is installed, else 0. Stores the requirement message.
std::int16_t IsMSWordInstalled();

/// The year of the newest release: 2010, 2007, 2003, else 2001, also where there is none at all: ask
/// IsMSWordInstalled() first. Stores the requirement message.
std::int16_t CheckMSWord();

/// Serial number of the drive with this letter, 0 when it cannot be read.
std::int32_t GetVolumeSerial(const QString& driveLetter);

/// Registry key of the folder of one release, "14.0" for instance.
QString wordProcessorKey(const QString& release);
