#pragma once

#include <QString>
#include <QVariant>

/// The installer's log, install.log in the home folder. The installer writes it; this program only reads it, to learn
/// by which channel it was installed.

/// The last value of that key in the log: "filename" (of the installer that ran) or "installedondate". Empty when there
/// is no log or no such line.
QVariant ReadInstallLog(const QString& key);

/// What a line of the log says, read in lower case: for the selector "1" the 18 characters that follow "installation
/// started", for "2" the installer's name from a line with "source:". Empty for any other line.
QString ParseInstallLine(const QString& selector, const QString& line);

/// The channel that stands in the installer's name behind the last underscore: "abc" of setup_abc.exe; "default" where
/// the name has none.
QString GetInstallChannel();
