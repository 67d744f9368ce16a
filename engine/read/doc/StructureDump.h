#pragma once

#include "read/doc/WordFile.h"

#include <string>

namespace orvane::read::doc {

// The structures of the table stream, an entry a line.

/// Source: [MS-DOC] 2.9.271 (STSH), 2.9.258 (STD).
std::string dumpStyles(const WordFile& file);
/// Source: [MS-DOC] 2.9.286 (SttbfFfn), 2.9.87 (FFN).
std::string dumpFonts(const WordFile& file);
/// Source: [MS-DOC] 2.9.191 (PlfLst), 2.9.148 (LSTF), 2.9.149 (LVL), 2.9.190 (PlfLfo).
std::string dumpLists(const WordFile& file);
/// Source: [MS-DOC] 2.8.26 (PlcfSed), 2.9.244 (Sepx).
std::string dumpSections(const WordFile& file);
/// Where the fields' characters stand, by part of the text. Source: [MS-DOC] 2.8.25 (Plcfld).
std::string dumpFields(const WordFile& file);
/// Source: [MS-DOC] 2.9.279 (SttbfBkmk), 2.8.10 (Plcfbkf).
std::string dumpBookmarks(const WordFile& file);
/// Marks of footnotes and endnotes, and where the notes begin. Source: [MS-DOC] 2.8.19, 2.8.20.
std::string dumpNotes(const WordFile& file);
/// Marks of comments, their authors, and where they begin. Source: [MS-DOC] 2.8.7 (PlcfandRef), 2.9.8 (ATRDPre10).
std::string dumpComments(const WordFile& file);
/// Where each header and footer begins. Source: [MS-DOC] 2.8.22 (Plcfhdd).
std::string dumpRunningTexts(const WordFile& file);
/// Which shape each text belongs to. Source: [MS-DOC] 2.8.32 (PlcftxbxTxt).
std::string dumpTextBoxes(const WordFile& file);
/// Where floating objects are anchored, and their boxes. Source: [MS-DOC] 2.8.37 (PlcfSpa).
std::string dumpAnchors(const WordFile& file);

} // namespace orvane::read::doc
