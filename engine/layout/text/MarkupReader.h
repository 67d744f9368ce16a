#pragma once

#include "layout/text/PageText.h"
#include "layout/text/TextParameters.h"

#include <vector>

namespace orvane::layout {

/// What readers drew on the text with annotations, as if it had been painted.
struct TextMarkup {
    std::vector<Rule> rules;     ///< under or through words
    std::vector<Ground> grounds; ///< behind words
};

/// The lines and grounds of highlighting, underlining and striking out.
TextMarkup markupOf(const std::vector<pdf::Annotation>& annotations, const TextParameters::Markup& parameters);

} // namespace orvane::layout
