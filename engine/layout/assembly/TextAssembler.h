#pragma once

#include "layout/DocumentContext.h"
#include "layout/Layout.h"
#include "layout/LayoutParameters.h"
#include "layout/assembly/LinkTargets.h"
#include "layout/assembly/ScriptFamilies.h"
#include "layout/assembly/UnseenValues.h"
#include "layout/fonts/FontCatalog.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// What the assembling of text needs to know beside the text.
struct AssemblyContext {
    const DocumentDraft& draft;
    const DocumentContext& document;
    const FontCatalog& fonts;
    const LinkTargets& links;
    const LayoutRequest& request;
    const LayoutParameters& parameters;
    bool paintsEndsOfHangul = false; ///< see HangulLines
    UnseenValues unseenValues{};     ///< none in true pages, where they go on below their frames
};

struct AssembledText {
    std::vector<document::Inline> inlines;
    std::vector<document::PageTurn> turns;
};

/// The words of the paragraph as runs of one look each: blanks between words, lines joined (hyphens at their ends
/// resolved), tabs, breaks made by hand, links, bookmarks. Label words are left out.
AssembledText assembleText(const DraftParagraph& paragraph, const AssemblyContext& context);

} // namespace orvane::layout
