#pragma once

#include "layout/assembly/AssemblyParameters.h"
#include "layout/fonts/FontParameters.h"
#include "layout/formulas/FormulaParameters.h"
#include "layout/frames/FrameParameters.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/page/PageParameters.h"
#include "layout/paragraphs/ParagraphParameters.h"
#include "layout/running/RunningParameters.h"
#include "layout/structure/StructureParameters.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Every threshold of the layout, each in the folder of the stage that it steers: a stage takes the part that it needs.
struct LayoutParameters : TextParameters,
                          GraphicsParameters,
                          RunningParameters,
                          PageParameters,
                          TableParameters,
                          ParagraphParameters,
                          StructureParameters,
                          FontParameters,
                          AssemblyParameters,
                          FrameParameters,
                          FormulaParameters {
    /// DocumentAnalyser: what most of the document looks like.
    struct Analysis {
        double sizeStep = 0.5;       ///< points; font sizes are counted in classes of this width
        double leadingStep = 0.25;   ///< points; distances between baselines are counted in classes of this width
        double maximumLeading = 3.0; ///< of the font size; lines farther apart say nothing about leading
        double minimumLeading = 0.5; ///< of the font size; lines closer together are one line, or scripts on it
        double defaultLeading = 1.2; ///< of the font size; where no two lines stand one below the other
        double edgeShare = 0.1;      ///< the text area's edge is where this share of the pages (or lines) has passed it
        int minimumWordLength = 3;   ///< bytes of UTF-8; shorter words say nothing about hyphens
        int fewestDoubleBlanks = 3;  ///< sentences with two blanks behind them before that may be a habit, ...
        double doubleBlankShare = 0.75; ///< ... if they are this share of those that end within lines
    } analysis;
};

} // namespace orvane::layout
