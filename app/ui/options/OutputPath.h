#pragma once

#include <QString>

#include <cstdint>

// What the options window does to the path of the output document. The separator is the platform's.

/// From the last dot to the end; the whole path when there is none.
QString extensionOf(const QString& path);

/// Whether the path ends in the extension of a document format, in any letter case.
bool isDocumentPath(const QString& path);

/// The path with the extension of the format (0 DOC, 1 RTF, 2 DOCX) in place of another document format's. The old
/// extension's text is replaced wherever it stands in the path, in its own letter case.
QString withFormat(const QString& path, std::int16_t intOutputFormat);

/// Up to the last separator, which stays; nothing without one.
QString withItsSeparator(const QString& path);

/// A name in a folder, with one separator between them.
QString inFolder(const QString& folder, const QString& name);
