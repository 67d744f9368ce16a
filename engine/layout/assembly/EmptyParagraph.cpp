#include "layout/assembly/EmptyParagraph.h"

#include <algorithm>

namespace orvane::layout {

document::Paragraph emptyParagraph(const AssemblyContext& context) {
    document::Paragraph paragraph;
    paragraph.style = "Normal";
    paragraph.markProperties.fontFamily = context.fonts.mainFamily(ScriptClass::Simple);
    paragraph.markProperties.size = halfPointsFromPoints(context.document.bodyFontSize);
    return paragraph;
}

document::Paragraph emptyParagraphWithin(double room, const AssemblyContext& context) {
    document::Paragraph paragraph = emptyParagraph(context);
    const double size = room / context.parameters.tableCells.emptyLeading;
    paragraph.markProperties.size =
        std::clamp(halfPointsFromPoints(size), HalfPoints(2), paragraph.markProperties.size);
    return paragraph;
}

} // namespace orvane::layout
