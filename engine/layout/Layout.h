#pragma once

#include "base/Diagnostic.h"
#include "base/JobObserver.h"
#include "document/Document.h"
#include "layout/LayoutParameters.h"
#include "layout/fonts/CarriedFonts.h"
#include "layout/text/PageText.h"
#include "pdf/PdfDocument.h"

#include <vector>

/// From pages to a document. The road: readPageText() for each page on its own (so on several threads), then
/// layoutDocument() for all of them, which finds what repeats, puts each page in order and assembles the document.
namespace orvane::layout {

enum class LayoutMode { Flowing, TruePage, Continuous, PlainText };

struct LayoutRequest {
    LayoutMode mode = LayoutMode::Flowing;
    bool removeImages = false;
    bool keepCharacterSpacing = false;
};

/// What the file says about itself beside its pages.
struct DocumentFacts {
    pdf::Metadata metadata;
    std::vector<pdf::OutlineEntry> outline;
    std::vector<pdf::StructureElement> structure;
    std::vector<CarriedFont> fonts; ///< that the document brings along; for LayoutMode::TruePage
};

/// The stages that need one page only: words, lines, rules, grounds, figures.
PageText readPageText(const pdf::PageContent& page, const LayoutParameters& parameters, Diagnostics& diagnostics);

/// The rest: running heads, tables, regions, paragraphs, lists, headings, styles, sections.
/// Errors: Failure(Cancelled) when the observer says so.
document::Document layoutDocument(std::vector<PageText> pages, const DocumentFacts& facts, const LayoutRequest& request,
                                  const LayoutParameters& parameters, const JobObserver& observer,
                                  Diagnostics& diagnostics);

} // namespace orvane::layout
