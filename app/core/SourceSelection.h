#pragma once

#include "core/System.h"
#include "records/SharedRecords.h"

#include <QString>

#include <optional>

// The choice of the files to convert. A file dialog returns one text: the path of one file, or a folder and the names
// of the files chosen in it, with a NUL character between the parts.

/// The text that a dialog returns for the chosen paths. Nothing for no file, for files of different folders, which such
/// a text cannot name, and for a text of more than `limit` characters.
std::optional<QString> dialogText(const QStringList& paths, qsizetype limit);

/// What became of a selection.
///   Nothing: it is empty or its last file is not there; nothing is said.
///   NotPdf: one of its names does not end in ".pdf", in any letter case.
///   Taken: strSourcePDF is its last file.
enum class Selection { Nothing, NotPdf, Taken };

/// Puts what the dialog returned into the queue and tests it. The queue holds the new selection even when it is
/// refused.
Selection takeSelection(SharedRecords& records, const FileOperations& files, const QString& dialogText);

/// Makes the queue hold one file, or a folder and names, with room for as many results.
void fillQueue(BatchQueue& queue, const QStringList& selectedFiles);
