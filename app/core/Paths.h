#pragma once

#include <QString>

namespace run {

// Paths are texts here, cut at their last separator and their last point.

/// What stands behind the last separator; the whole text when there is none.
QString nameOf(const QString& path);

/// What stands before the last separator. Errors: throws when there is none.
QString folderOf(const QString& path);

/// The text before its last point; the whole text when there is none.
QString stemOf(const QString& name);

/// A folder, a separator and a name; a folder that ends in a separator gets a second one.
QString fileIn(const QString& folder, const QString& name);

} // namespace run
