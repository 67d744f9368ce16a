#include "base/Diagnostic.h"

namespace orvane {

const char* toString(DiagnosticKind kind) {
    switch (kind) {
    case DiagnosticKind::PageUnreadable: return "PageUnreadable";
    case DiagnosticKind::ContentDamaged: return "ContentDamaged";
    case DiagnosticKind::FontSubstituted: return "FontSubstituted";
    case DiagnosticKind::TextUnmapped: return "TextUnmapped";
    case DiagnosticKind::TextRepaired: return "TextRepaired";
    case DiagnosticKind::PictureUnreadable: return "PictureUnreadable";
    case DiagnosticKind::PictureSimplified: return "PictureSimplified";
    case DiagnosticKind::DrawingSimplified: return "DrawingSimplified";
    case DiagnosticKind::LinkUnresolved: return "LinkUnresolved";
    case DiagnosticKind::StructureIgnored: return "StructureIgnored";
    case DiagnosticKind::PagesOutOfRange: return "PagesOutOfRange";
    case DiagnosticKind::FormatLimitReached: return "FormatLimitReached";
    case DiagnosticKind::TimeBudgetExceeded: return "TimeBudgetExceeded";
    case DiagnosticKind::ContentLeftOut: return "ContentLeftOut";
    }
    return "ContentDamaged";
}

} // namespace orvane
