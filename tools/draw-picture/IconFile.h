#pragma once

#include <QImage>

#include <vector>

/// Writes an icon file of square pictures, each kept as a PNG.
/// Errors: throws std::runtime_error for a picture that is no square of 1 to 255 pixels, or a file that cannot be
/// written.
void writeIcon(const std::vector<QImage>& pictures, const QString& path);
