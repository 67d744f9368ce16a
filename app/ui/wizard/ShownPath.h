#pragma once

#include <QString>

/// A path as the summary shows it: whole up to 56 characters, else its two ends with dots between them.
QString shortenedPath(const QString& path);
