#pragma once

#include "base/Geometry.h"

#include <string>
#include <vector>

namespace orvane {

/// What can be wrong with a document that is converted all the same. A closed list: the log's readers count by it.
enum class DiagnosticKind {
    PageUnreadable,       ///< a page's content could not be read; its place is kept
    ContentDamaged,       ///< part of a page's content stream or of an object is broken
    FontSubstituted,      ///< a font is not embedded or not usable; another was measured instead
    TextUnmapped,         ///< characters whose Unicode value is unknown
    TextRepaired,         ///< characters whose Unicode value was found by other means than the file's own map
    PictureUnreadable,    ///< a picture could not be decoded
    PictureSimplified,    ///< a picture was changed: colour space, mask, resolution
    DrawingSimplified,    ///< a drawing was left out or made into a picture
    LinkUnresolved,       ///< a link whose target does not exist
    StructureIgnored,     ///< tags that contradict the page
    PagesOutOfRange,      ///< the page range was cut to the document
    FormatLimitReached,   ///< more than the target format can hold: page size, columns, tables in tables
    TimeBudgetExceeded,   ///< a stage was cut short and a simpler method was used
    ContentLeftOut,       ///< something of a page is not in the document
};

/// One thing worth telling about the source or its conversion; goes to the conversion log.
struct Diagnostic {
    DiagnosticKind kind = DiagnosticKind::ContentDamaged;
    int page = 0; ///< 1-based; 0 for the document as a whole
    Rect box;     ///< empty when the whole page is meant
    std::string message;
};

/// Collects diagnostics. Thread: one collector a thread; collectors are joined at the end.
class Diagnostics {
public:
    void add(DiagnosticKind kind, int page, std::string message, Rect box = {}) {
        m_entries.push_back({kind, page, box, std::move(message)});
    }
    void append(const Diagnostics& other) { m_entries.insert(m_entries.end(), other.m_entries.begin(), other.m_entries.end()); }
    const std::vector<Diagnostic>& entries() const { return m_entries; }

private:
    std::vector<Diagnostic> m_entries;
};

/// The kind's name as it stands in the log.
const char* toString(DiagnosticKind kind);

} // namespace orvane
