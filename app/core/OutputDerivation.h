#pragma once

#include "records/SharedRecords.h"

#include <QString>

// The path of the document, derived from the source, the output mode intOutputPath and the format intOutputFormat. The
// places that derive it differ on purpose, and all their variants stand here. The source's extension is cut by count.

/// Values of AppSettings::intOutputFormat.
namespace output_format {
inline constexpr std::int16_t kDoc = 0;
inline constexpr std::int16_t kRtf = 1;
inline constexpr std::int16_t kDocx = 2;
} // namespace output_format

/// Values of AppSettings::intOutputPath that derive a path; with any other, the path stays as it is.
namespace output_mode {
inline constexpr std::int16_t kRecentFolder = 0; ///< into strRecentOutputFolder
inline constexpr std::int16_t kBesideSource = 2;
} // namespace output_mode

/// Which formats a place knows an extension for.
///   All: ".doc", ".rtf", ".docx".
///   DocOrRtf: places older than DOCX; every format but DOC gives ".rtf".
enum class FormatChoice { All, DocOrRtf };

/// Extension of a format, with its dot; empty for an unknown one.
QString extensionOf(std::int16_t intOutputFormat, FormatChoice choice = FormatChoice::All);

/// The document's bare name, made from the source's. A name too short for an extension stands as it is.
QString outputNameOf(const QString& strSourcePDF, const QString& extension);

/// The rule in its full form (FormatChoice::All), or as "Convert Using Wizard..." applies it (DocOrRtf). Writes
/// strOutputFile and, in the mode of the recent folder, the document's bare name.
void DeriveOutputPath(SharedRecords& records, QString& strOutputName, FormatChoice choice = FormatChoice::All);

/// The same rule without records to write, as a batch applies it to its files: `present` in any other mode, so that
/// all of them aim at one target.
QString outputOf(const QString& source, const AppSettings& settings, const QString& present,
                 FormatChoice choice = FormatChoice::All);

/// "Save as DOC" and "Save as RTF": beside the source whatever the mode.
QString outputBesideSource(const SharedRecords& records, std::int16_t intOutputFormat);

/// What the loading main window shows: a document in the home folder, under the name that stands or else a new one of
/// DOC or RTF. The path to write stays as it is.
QString outputShownAtLoading(const SharedRecords& records, QString& strOutputName);

/// What the main window shows when it becomes active: always a new name, in the recent output folder with a separator
/// between them whatever the folder ends in.
QString outputShownAtActivation(const SharedRecords& records, QString& strOutputName);

/// The same where strOutputFile holds a folder instead of a document: the new name directly behind it.
QString outputShownInItsFolder(const SharedRecords& records, QString& strOutputName);

/// The path of a document with the extension of another format, as a change of the settings asks for it. The old
/// extension's text is replaced wherever it stands in the path, in its own letter case; other paths stay as they are.
QString withFormat(const QString& path, std::int16_t intOutputFormat);

/// Whether a path ends, from its last dot, in the extension of a document: .doc, .rtf or .docx in any letter case.
bool hasDocumentExtension(const QString& path);
