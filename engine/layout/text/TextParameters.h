#pragma once

#include <cstddef>
#include <cstdint>

namespace orvane::layout {

/// Thresholds of the folder `text`: from glyphs to lines. A field says its unit, its meaning and what taught its value.
struct TextParameters {
    /// GlyphFilter: what takes part in the text.
    struct Glyphs {
        double minimumSize = 0.5;        ///< points; smaller text is no text for readers
        double duplicateDistance = 0.15; ///< of the font size; equal glyphs this close are one, painted again (shadows)
        double duplicateAdvanceShare = 0.45; ///< of the advance; narrow letters may stand close ("ll")
        double duplicateMarkDistance = 0.02; ///< of the font size; the same for marks without advance
        double samePlaceDistance =
            0.003; ///< of the font size; closer than this is the same place, which makes nothing bold
        double fakeBoldDistance = 0.07; ///< of the font size; an offset up to this thickens the strokes
        double coverCell = 4;           ///< points; grain at which pictures and visible text are told to cover others
        std::uint8_t palest = 240;      ///< each part of a colour that cannot be told from paper is at least this
        double scannedPageShare = 0.8;  ///< of the page; pictures that cover as much are a scan
        double stampShare = 0.2; ///< of the recognised characters; as many may be visible on a scan, stamped on it
    } glyphs;

    /// FrameFinder: directions of writing.
    struct Frames {
        double skewTolerance = 3;   ///< degrees; text this close to level or plumb is meant to be so
        double smallestSkew = 0.05; ///< degrees; less than this is not worth turning by
    } frames;

    /// RecognisedWidths: the words of a scan.
    struct Recognition {
        double gap = 0.15;            ///< of the font size; wider gaps part words where no blank is painted
        std::size_t shortestWord = 3; ///< characters of a word whose room tells how wide it was
        std::size_t fewestWords = 20; ///< of a page; of fewer there is no middle to trust
        double leastStretch = 1.3;    ///< of the set width; less is what justified lines have
        double leastBlank = 0.8;      ///< of the blank; what is left between stretched words
    } recognition;

    /// ClusterBuilder: glyphs that cannot be parted.
    struct Clusters {
        double sizeStep = 0.1;     ///< points; font sizes are rounded to this, as the file's arithmetic blurs them
        double scaleStep = 0.01;   ///< of the natural width
        int boldWeight = 600;      ///< font weight from which on text is bold
        double markRise = 0.5;     ///< of the font size; how far a mark's baseline may be off its letter's
        double markReach = 0.3;    ///< of the font size; how far beside its letter a mark may be placed
        double markTie = 0.05;     ///< of the font size; below this difference a mark goes with the letter before it
        std::size_t mostMarks = 8; ///< marks on one letter
        double touch = 0.05;       ///< of the font size; glyphs this close touch
        double hangingRise = 0.1;  ///< of the font size; signs that hang from their origin reach no higher above it ...
        double hangingDepth = 0.3; ///< ... and farther below
        double axisHeight = 0.25;  ///< of the font size; the middle of large signs above the line they stand on
        double accentOverlap = 0.5; ///< of the narrower one; a spacing accent over this much of a letter belongs to it
    } clusters;

    /// TextStrip and RowBuilder: clusters on one baseline.
    struct Rows {
        double stripRise = 0.05;       ///< of the font size; clusters of a strip share a baseline within this
        double stripSizeChange = 0.05; ///< of the font size
        double stripBackstep = 0.5;    ///< of the font size; how far a cluster may begin before the end of the last one
        double stripGap = 1.0;         ///< of the font size; a wider jump begins a new strip
        double baselineTolerance = 0.2; ///< of the font size; strips this close in height stand on one row
        double overprint = 0.3;         ///< of the narrower one; more overlap than this is text on top of text
        double overprintSize = 0.3;     ///< of the font size; less overlap than this is kerning
    } rows;

    /// GutterFinder: where rows are cut into lines. Shares are of the row's font size.
    struct Gutters {
        double wideGap = 0.7;          ///< two to three blanks; narrower gaps are never looked at
        double tabGap = 1.0;           ///< narrower gaps that are no gutters are blanks, after full stops for instance
        double wideAgainstUsual = 1.7; ///< of the row's usual blank; justified text has wide blanks all along
        double evenBlanks = 0.05;      ///< blanks of a stretched row differ by no more
        int mostTypedBlanks = 3;       ///< painted blanks; a row of more was typed to move text to a place
        unsigned fewestGaps = 3;       ///< gaps it takes to know the usual blank
        double narrowest = 0.5;        ///< what neighbours must leave empty of the same gap
        double alignment = 0.35;       ///< how far edges may be off to be aligned
        double farthest = 2.6;         ///< distance of baselines between neighbours that bear witness
        int neighbours = 6;            ///< rows asked in each direction
        int fewestWitnesses = 2;       ///< rows beside this one that leave the gap empty
        double labelGap = 4;           ///< between a list label and its text
        unsigned longestLabel = 8;     ///< characters of a list label
        double widestJustified = 1.4;  ///< a wider gap may be a gutter however wide the other blanks of its row are
        double indent = 2.5;           ///< a column's first line may begin this far off the next one
        double wallSlack = 1;          ///< points; how far a rule between cells may touch the text
        double wallHeight = 0.4;       ///< how far above the baseline a rule must reach to stand in the row
        double narrowestWalled = 0.1;  ///< of the gap that a rule may stand in
        double groundHeight = 1.35;    ///< a lower ground may be a highlight, whose edges part nothing
    } gutters;

    /// WordBuilder: where words end. Shares "of the blank" are of the font's own blank.
    struct Words {
        double stretchGap = 1.5;           ///< of the font size; letters across a wider gap need not be spaced alike
        unsigned fewestLetterGaps = 3;     ///< gaps it takes to measure letter spacing
        unsigned fewestSpacedLetters = 4;  ///< gaps it takes to believe in letters spaced as wide as blanks
        double tightestSpacing = 0.5;      ///< of the blank; letter spacing up to this needs no further proof
        double widestSpacing = 0.6;        ///< of the font size; letters wider apart than this are words of their own
        double greatestCondensing = 0.3;   ///< of the font size; letters are not set tighter than this
        double greatestBorrowedGap = 0.15; ///< of the font size; letter spacing taken over from the rest of the row
        double evenShare = 0.75;           ///< the middle half of letter-spaced gaps are alike...
        double evenness = 0.35;            ///< ...within this share of their width
        double blankShare = 0.2;           ///< of the blank; a painted blank that leaves less room than this is none
        double narrowestBlank = 0.8;       ///< of the blank; with less room for each, fewer were typed than are painted
        double typedHole = 1;              ///< of the blank; blanks with wider holes among them do not fill their gap
        double gapAmongBlanks = 0.45;      ///< of the blank; ends a word where blanks are painted
        double gapWithoutBlanks = 0.45;    ///< of the blank; ends a word where they are not
        double scriptGap = 0.9;            ///< of the blank; between a script and its host
        double weightGap = 0.02;           ///< of the font size; between words of different weights
        double eastAsianGap = 0.7;         ///< of the font size; between characters written without blanks
        double overprint = 0.6;            ///< of the font size; a jump back this far begins another word
        double labelGap = 0.1;             ///< of the font size; between a label and East Asian text
        std::size_t longestLabel = 8;      ///< characters of such a label
    } words;

    /// SpanBuilder: characters of one look.
    struct Spans {
        double scaleChange = 0.02;   ///< of the natural width; less does not end a span
        double leastSpacing = 0.015; ///< of the font size; less is the rounding of positions
        double spacingStep = 0.05;   ///< points; word processors' grain
    } spans;

    /// ScriptFinder: superscripts, subscripts and drop caps. Shares are of the host's font size unless said otherwise.
    struct Scripts {
        double smallestRatio = 0.4; ///< font size of the script against the host's; scripts of scripts are about 0.5
        double smallestMarkRatio = 0.27; ///< likewise, of marks of trade and of notes
        double largestRatio = 0.92;
        double usualRatio = 0.6; ///< to which word processors shrink scripts
        double leastRise = 0.12; ///< of a superscript's baseline
        double greatestRise = 0.75;
        double leastDrop = 0.05; ///< of a subscript's baseline
        double greatestDrop = 0.45;
        double reachAfter =
            0.45; ///< gap between the host's end and a script after it; two scripts may follow each other
        double reachBefore = 0.6;         ///< gap between a script and the host after it, as in "1 note"
        double overlap = 0.25;            ///< how far they may overlap (slanted letters)
        unsigned longestScript = 40;      ///< characters
        std::size_t mostNeighbours = 400; ///< strips looked at on each side
        double dropCapRatio = 1.8;        ///< font size of a drop cap against its line's
        double dropCapDepth = 0.9;        ///< how far its baseline lies below that of its first line
        double dropCapGap = 1.2;          ///< between cap and line
        double dropCapTop = 0.6;          ///< how far the tops of cap and first line may differ
        double dropCapLeading = 1.2;      ///< baseline to baseline, where the cap stands beside a single line
        unsigned dropCapLetters = 2;      ///< a quotation mark may stand before the letter
        double capitalHeight = 0.7;       ///< of a font's own size
        unsigned shiftedLetters = 3;      ///< that stand higher or lower within a word: the E of a logo
        double leastScriptShift = 0.35;   ///< of their baseline, from which on it makes them scripts
        double greatestShift = 0.5;       ///< of their baseline at all
        double shiftedGap = 0.15;         ///< between them and the letters on both sides
    } scripts;

    /// SmallCaps.
    struct SmallCaps {
        double smallestRatio = 0.65; ///< size of small capitals against that of capitals; word processors use 0.8
        double largestRatio = 0.88;
        double sameSize = 0.15;     ///< points
        double sameBaseline = 0.05; ///< of the font size
    } smallCaps;

    /// TextDecoration: rules and grounds that belong to words. Shares are of the line's font size.
    struct Decoration {
        double underlineTop = 0.02;   ///< an underline lies no higher above the baseline
        double underlineReach = 0.28; ///< nor farther below it
        double strikeBottom = 0.15;   ///< a strike lies at least this far above the baseline
        double strikeTop = 0.45;      ///< and no farther than this
        double thickest = 0.16;       ///< width of an underline
        double thickestDouble = 0.25; ///< width of a double one, the space between its lines included
        double thickUnderline = 0.1;  ///< width from which on it is a thick one
        double slack = 0.35;          ///< how far it may begin or end off the words, a blank for instance
        double borderReach = 1;       ///< points; a rule whose end meets a rule of the other direction is a border
        double lowestHighlight = 0.8; ///< height of a ground that highlights one line
        double highestHighlight = 1.7;
        double middleOfText = 0.3; ///< height of the middle of letters above the baseline
        double indexStep = 12;     ///< points; slices of the page in which things are looked for
    } decoration;

    /// MarkupReader: marks of readers on the text, within the boxes around the words.
    struct Markup {
        double underlineHeight = 0.1; ///< of the box's height; from its bottom
        double strikeHeight = 0.45;   ///< likewise
        double thickness = 0.06;      ///< of the box's height
    } markup;

    /// FieldSigns: what stands for form fields.
    struct Fields {
        double boxReach = 2;       ///< points; how far the outline of a check box lies outside it
        double usualSize = 11;     ///< points; of text in a field with none beside it ...
        double sizeShare = 0.7;    ///< ... which does not fill more of its height
        double descentShare = 0.2; ///< of the size; below the baseline
        double letterWidth = 0.5;  ///< of the size
        double groundShare = 0.9;  ///< of the field; what is filled so far is its ground
    } fields;

    /// DrawnBoxes: squares to tick that are drawn.
    struct DrawnBoxes {
        double smallest = 5;       ///< points; the side
        double largest = 16;       ///< points
        double squareness = 0.85;  ///< shorter side against the longer one
        double straightness = 0.5; ///< points; how far the ends of its lines may be off level and plumb
        double frame = 1;          ///< points; outlines and grounds this near to each other are of one box
        double leastOfText = 0.5;  ///< of the font size of the text beside it; the side
        double mostOfText = 1.8;   ///< likewise
        double rise = 0.4;         ///< of the side; the text's baseline lies at least this far below the top ...
        double drop = 0.4;         ///< ... and at most so far below the bottom
        double labelGap = 3;       ///< of the font size; to the text beside it
        double overlap = 0.3;      ///< of the side; how far the room of letters may reach into the box
        double rowGap = 1;         ///< of the side; squares this near to each other are a row for letters
        double touch = 0.6;        ///< points; lines this near touch its sides
        double overhang = 3;       ///< points; how far a mark may stick out of it
        double sizeStep = 0.5;     ///< points; squares that differ by less are alike
        double boxShare = 0.5;     ///< of the squares alike that must stand beside text
        double indexStep = 12;     ///< points; slices of the page in which things are looked for
    } drawnBoxes;

    /// LeaderFinder: dots before page numbers.
    struct Leaders {
        unsigned fewestDots = 4;
        unsigned longestEllipsis = 4;  ///< dots; a sentence may break off with as many, which lead to numbers only
        double shortest = 1.5;         ///< of the font size; length of a leader
        double widestGap = 1.5;        ///< of the font size; between two of its dots
        double nextColumn = 1;         ///< of the font size; a gap that ends what the leader leads to
        unsigned longestTarget = 16;   ///< characters of what it leads to
        std::size_t longestNumber = 3; ///< characters of an item's number, behind which a blank to fill in may stand
    } leaders;

    /// StripOrder: in which order pieces of one row that were painted apart are read.
    struct Strips {
        double blankPlace = 0.2;  ///< of its width; the word after a blank may begin before the blank's end
        double blankTouch = 0.02; ///< of the font size; a blank that begins so near to a letter's end follows it
        double scriptTouch = 0.1; ///< of the font size; scripts that only touch follow each other
    } strips;

    /// WordDivision: hyphens at the ends of lines.
    struct Division {
        std::size_t proseWords = 4; ///< words of a line that may end in the middle of one
        double farthestLine = 3.0;  ///< of the font size; to the line on which the word goes on
        int fewestHyphens = 3;      ///< lines that end in hyphens before these may come from dividing words at all, ...
        double hyphenShare = 0.04;  ///< ... if they are this share of the lines. Whoever divides words does so often
    } division;

    /// LanguageGuess: the language of the text.
    struct Languages {
        double scriptShare = 0.5;     ///< of the letters; a script with more is the text's
        double kanaShare = 0.05;      ///< of East Asian characters; with more the text is Japanese
        std::size_t fewestWords = 12; ///< of the language's short words
        double wordShare = 0.1;       ///< of the text's words; in prose they are a third
        double lead = 1.1;            ///< over the count of the second language
    } languages;
};

} // namespace orvane::layout
