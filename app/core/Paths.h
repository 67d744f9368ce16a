#pragma once

#include <QString>

// Paths are texts here, cut at their last separator and their last point.

/// What stands behind the last separator; the whole text when there is none.
QString nameOf(const QString& path);

/// What stands before the last separator. Errors: throws when there is none.
QString folderOf(const QString& path);

/// The same with the separator; nothing when there is none.
QString folderWithSeparator(const QString& path);

/// The text before its last point; the whole text when there is none.
QString stemOf(const QString& name);

/// From the last point to the end, which need not be in the file's name; the whole text when there is none.
QString extensionIn(const QString& path);

/// The path without its last four characters, whatever they are.
QString withoutExtension(const QString& path);

/// A folder, a separator and a name; a folder that ends in a separator gets a second one.
QString fileIn(const QString& folder, const QString& name);

/// The same, but a folder that ends in a separator gets none.
QString fileBelow(const QString& folder, const QString& name);
