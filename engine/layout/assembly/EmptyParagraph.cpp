#include "layout/assembly/EmptyParagraph.h"

namespace orvane::layout {

document::Paragraph emptyParagraph(const AssemblyContext& context) {
    document::Paragraph paragraph;
    paragraph.style = "Normal";
    paragraph.markProperties.fontFamily = context.fonts.mainFamily(ScriptClass::Simple);
    paragraph.markProperties.size = halfPointsFromPoints(context.document.bodyFontSize);
    return paragraph;
}

} // namespace orvane::layout
