#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `graphics`: paths and pictures. A field says its unit, its meaning and what taught its
/// value.
struct GraphicsParameters {
    /// RuleFinder and RuleMerger: lines drawn on the page.
    struct Rules {
        double straightness = 0.5;       ///< points; how far the ends of a line may be off level
        double thickest = 3.2;           ///< points; broader bars are grounds ...
        double broadest = 6.2;           ///< points; ... or rules, as broad as word processors draw them, ...
        double broadLength = 20;         ///< ... if they are so many times as long as broad
        double thinnest = 0.1;           ///< points; width given to hairlines
        double steepest = 0.1;           ///< rise against length of a short line that counts as level
        double slenderness = 2;          ///< length against width of a filled rectangle that is a rule
        double sameLine = 0.4;           ///< points; pieces this close in position are on one line
        double joinGap = 1.0;            ///< points; pieces this close continue each other
        double widthChange = 0.3;        ///< points; pieces of one rule differ no more in width
        double longestDash = 12;         ///< points; of a dash and of the gap between dashes
        double dashEvenness = 0.25;      ///< how much dashes may differ
        unsigned fewestDashes = 4;       ///< pieces in a row that are one dashed rule
        double dotLength = 1.6;          ///< of the width; shorter dashes are dots
        double doubleDistance = 3;       ///< points; between the middles of a double rule's lines
        double doubleAgainstWidth = 1.2; ///< of the width; closer lines are one broad one
        double broadDouble = 2.5;        ///< of the width; broad lines are a double rule though farther apart
        double shortestDouble = 6;       ///< points
        std::size_t pairReach = 64;      ///< rules looked at for the second one of a pair
        double coverCell = 2;            ///< points; grain at which a white rectangle is told to lie on a ground
        double outlineSlack = 1.0;       ///< points; an outline lies this near to the edges of its ground
        double indexStep = 12;           ///< points; height of the slices in which rules are looked up
    } rules;

    /// PageColor.
    struct PageColor {
        double edge = 1.0;      ///< points; the colour of the paper reaches this near to all edges
        double pageShare = 0.9; ///< of the pages that must have it
    } pageColor;

    /// DrawingFinder: groups of paths that are drawings.
    struct Drawings {
        double gap = 5;               ///< points; shapes of one drawing lie this close
        double smallest = 8;          ///< points; the longer side of what is worth a figure
        double backgroundShare = 0.5; ///< of the page; larger shapes are decoration
        double reach = 2;             ///< points; how far rules and grounds of a drawing may stick out of it
        double growth = 12;           ///< points; axes stand this close to the curve that they measure
        double insideShare = 0.5;     ///< of a rule's or ground's sides that must lie within
        int growthPasses = 3;         ///< times that axes and bars are looked for around a drawing
        double overlapShare = 0.5;    ///< of the smaller drawing; with more in common two are one
        unsigned wordsOfProse = 8;    ///< words of a line that is no label
        double proseShare = 0.4;      ///< of the drawing's width; shorter lines may be notes at a shape
        double touch = 2.0;           ///< points; a line ends this near to the shape it leads to
        double shapesACrossing = 4;   ///< shapes for each crossing of the lines between them; tables cross more often
    } drawings;

    /// ScannedPages: pictures of pages whose text was recognised.
    struct Scans {
        std::size_t fewestWords = 8; ///< of a page that has been read; fewer are words in a picture
        double textShare = 0.05;     ///< of a picture under the words; pictures with as much are pictures of text
        double sameSize = 0.2;       ///< of a font size; sizes that differ by less are one
        double widestBlank = 3.0;    ///< of the font size; a wider gap between words is one that was meant
    } scans;

    /// ScanIllustrations: what a scan shows besides its words.
    struct Illustrations {
        double inkSquare = 4.0;   ///< points; ink is looked for so coarsely
        double inkGap = 8.0;      ///< points; parts of one illustration lie this close
        double wordMargin = 0.35; ///< of the font size; ink this near to words that were read is theirs
        double smallest = 40.0;   ///< points, each side; less is a blot, a rule or a letter that was not read
        double largest = 0.8;     ///< of the page's area; more is the paper's own shade
        double wordShare = 0.05;  ///< of its area; with more it is ruled or shaded text
        double edge = 8.0;        ///< points; what comes so near to opposite edges of the page is the scanner's shadow
    } illustrations;

    /// ShapeMaker: drawings as shapes.
    struct Shapes {
        std::size_t mostShapes = 150;    ///< of a drawing that somebody would take apart
        std::size_t mostSegments = 2500; ///< lines and curves of all its shapes
        double cut = 0.75;               ///< points; a clip that takes less away is not seen
        double thinnestLine = 0.25;      ///< points; width given to hairlines
        double dotLength = 1.6;          ///< of the line's width; shorter dashes are dots
        std::size_t looksBack = 16;      ///< looks among the last ones painted that an alike shape is sought in
    } shapes;

    /// GradientMaker: shadings as the gradients of shapes.
    struct Gradients {
        double bareShare = 0.02;   ///< of the axis; so much of the shape may lie beside a shading that ends
        double sameMiddle = 0.05;  ///< of the radius; how far the circles' middles may lie apart, and from the shape's
        double squareness = 0.9;   ///< shorter side against the longer one of what circles fill evenly
        std::size_t mostStops = 8; ///< more are a picture
    } gradients;

    /// AnnotationFigures: stamps, ink and typed texts that were laid over the page's text.
    struct Annotations {
        std::size_t fewestCovered = 3; ///< letters under it; fewer are touched by chance
        double coveredShare = 0.3;     ///< of a letter's box within the annotation for it to be covered
    } annotationFigures;

    /// BarFinder: the bars of charts.
    struct Bars {
        double sameEdge = 1.0;  ///< points; bars stand on one line, and are alike in breadth, within this
        int fewestBars = 3;     ///< fewer may be anything ...
        int fewestLengths = 3;  ///< ... and grounds of few lengths are cells
        double widestGap = 6.0; ///< of the breadth; between bars of one chart
    } bars;

    /// ChartLabels: what stands around a chart. Lengths are shares of the label's font size.
    struct Charts {
        double smallest = 36;          ///< points; the shorter side of a drawing that may be a chart
        double sameCorner = 1.5;       ///< points; rules that end so near to each other meet
        double reach = 3.0;            ///< between the drawing and its numbers, and between these and the names
        std::size_t fewestNumbers = 3; ///< of a scale
        std::size_t fewestNames = 2;   ///< in a row below, of what bars stand for
        std::size_t wordsOfLabel = 6;  ///< more are a sentence
        double largestLabel = 1.5;     ///< of the numbers' size; larger letters are those of the text
        double offMiddle = 0.15;       ///< of the chart's width; how far off its middle a title may stand
    } charts;

    /// FigureFinder: pictures.
    struct Pictures {
        double smallest = 3;           ///< points; the longer side of a picture that is no spacer
        double leastCrop = 0.005;      ///< of a side; less is rounding
        double tileGap = 0.75;         ///< points; strips and tiles of one picture lie this close
        double backgroundShare = 0.85; ///< of the page
    } pictures;
};

} // namespace orvane::layout
