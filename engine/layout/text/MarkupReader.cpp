#include "layout/text/MarkupReader.h"

namespace orvane::layout {
namespace {

Rule ruleAcross(const Rect& quad, double height, const pdf::Annotation& annotation,
                const TextParameters::Markup& parameters) {
    Rule rule;
    rule.position = quad.bottom - height * quad.height();
    rule.from = quad.left;
    rule.to = quad.right;
    rule.width = parameters.thickness * quad.height();
    rule.color = annotation.color;
    if (annotation.kind == pdf::AnnotationKind::Squiggly)
        rule.kind = document::BorderKind::Wave;
    return rule;
}

} // namespace

TextMarkup markupOf(const std::vector<pdf::Annotation>& annotations, const TextParameters::Markup& parameters) {
    TextMarkup markup;
    for (const pdf::Annotation& annotation : annotations) {
        for (const Rect& quad : annotation.quads) {
            switch (annotation.kind) {
            case pdf::AnnotationKind::Highlight:
                // A highlight without a colour is not seen; nobody highlights in black.
                if (annotation.color != kBlack)
                    markup.grounds.push_back({quad, annotation.color, 1, false, 0, std::nullopt});
                break;
            case pdf::AnnotationKind::Underline:
            case pdf::AnnotationKind::Squiggly:
                markup.rules.push_back(ruleAcross(quad, parameters.underlineHeight, annotation, parameters));
                break;
            case pdf::AnnotationKind::StrikeOut:
                markup.rules.push_back(ruleAcross(quad, parameters.strikeHeight, annotation, parameters));
                break;
            default:
                break;
            }
        }
    }
    return markup;
}

} // namespace orvane::layout
