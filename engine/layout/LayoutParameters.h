#pragma once

#include <cstddef>

/// Every threshold of the layout stages. A field says its unit, its meaning and what taught its value.
namespace orvane::layout {

struct LayoutParameters {
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
        double scannedPageShare = 0.8;  ///< of the page; pictures that cover as much are a scan
    } glyphs;

    /// FrameFinder: directions of writing.
    struct Frames {
        double skewTolerance = 3;   ///< degrees; text this close to level or plumb is meant to be so
        double smallestSkew = 0.05; ///< degrees; less than this is not worth turning by
    } frames;

    /// ClusterBuilder: glyphs that cannot be parted.
    struct Clusters {
        double sizeStep = 0.1;      ///< points; font sizes are rounded to this, as the file's arithmetic blurs them
        double scaleStep = 0.01;    ///< of the natural width
        int boldWeight = 600;       ///< font weight from which on text is bold
        double markRise = 0.5;      ///< of the font size; how far a mark's baseline may be off its letter's
        double markReach = 0.3;     ///< of the font size; how far beside its letter a mark may be placed
        double markTie = 0.05;      ///< of the font size; below this difference a mark goes with the letter before it
        std::size_t mostMarks = 8;  ///< marks on one letter
        double touch = 0.05;        ///< of the font size; glyphs this close touch
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

    /// ScriptFinder: superscripts, subscripts and drop caps. Shares are of the host's font size unless said otherwise.
    struct Scripts {
        double smallestRatio = 0.4; ///< font size of the script against the host's; scripts of scripts are about 0.5
        double largestRatio = 0.92;
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
        double dropCapLeading = 1.2;      ///< baseline to baseline; to count the lines a cap stands over
        unsigned dropCapLetters = 2;      ///< a quotation mark may stand before the letter
        double capitalHeight = 0.7;       ///< of a font's own size
    } scripts;

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
        double gapAmongBlanks = 0.45;      ///< of the blank; ends a word where blanks are painted
        double gapWithoutBlanks = 0.45;    ///< of the blank; ends a word where they are not
        double scriptGap = 0.9;            ///< of the blank; between a script and its host
        double eastAsianGap = 0.7;         ///< of the font size; between characters written without blanks
        double overprint = 0.6;            ///< of the font size; a jump back this far begins another word
        double labelGap = 0.1;             ///< of the font size; between a label and East Asian text
        std::size_t longestLabel = 8;      ///< characters of such a label
    } words;

    /// TextAssembler: from spans to runs.
    struct Text {
        double naturalScale = 0.02; ///< of the natural width; glyphs stretched by less are taken as natural
    } text;

    /// TabStopFinder.
    struct Tabs {
        double edgeTolerance = 2.0;   ///< points; text that ends this near the column's edge was set against it
        double centerTolerance = 2.0; ///< points; likewise for its middle
        double sameStop = 2.0;        ///< points; stops nearer to each other are one
    } tabs;

    /// LineMetrics, ParagraphFormat, SpacingFinder: white space, as its author typed it.
    struct Spacing {
        double lowestMultiple = 0.7;      ///< line spacing below this is an exact height
        double highestMultiple = 3.5;     ///< likewise above
        double multipleTolerance = 0.012; ///< a multiple this near to a usual one (1.0, 1.15, 1.5 ...) is that one
        double smallestIndent = 1.0;      ///< points; less is noise
        double sameGap = 0.6;             ///< points; gaps between paragraphs that differ by less are one
        double largestGap = 250.0; ///< points; what is more is an empty part of the page, not space after a paragraph
        double usualShare = 0.25;  ///< of the gaps behind a style's paragraphs that must agree to be the style's
    } spacing;

    /// StyleMaker: what differs by less than this has the style's value.
    struct Styles {
        double sameIndent = 1.0;     ///< points
        double sameMultiple = 0.016; ///< of single spacing
        double sameHeight = 0.3;     ///< points; of lines of an exact height
    } styles;

    /// FigureAssembler.
    struct Figures {
        double alignmentTolerance =
            3.0; ///< points; a picture this near to the middle or edge of its column was set there
    } figures;

    /// TableAssembler.
    struct TableCells {
        double usualMargin = 5.4;   ///< points; between a cell's side and its text, unless less is seen
        double largestMargin = 6.0; ///< points; above and below the text; more comes from the row's height
    } tableCells;

    /// NoteAreas, NoteFinder: footnotes and endnotes.
    struct Notes {
        double shortestRule = 0.07;  ///< of the page's width; of the rule above the notes
        double longestRule = 0.45;   ///< likewise
        double largestGap = 30.0;    ///< points; between the rule and the first note
        double largestSize = 1.05;   ///< of the body text's size
        double edgeTolerance = 12.0; ///< points; the rule starts this near to where the text starts
        double columnReach = 120.0;  ///< points; text this far above the rule tells the columns
        double narrowestColumn = 0.2; ///< of the page's width
    } notes;

    /// ListLabel, ListGroups, ListFinder.
    struct Lists {
        double sameIndent = 3.0; ///< points; labels or texts that start this near to each other are of one level
    } lists;

    /// HeadingFinder, HeadingStyles: headings where only their looks tell them.
    struct Headings {
        int maximumLines = 3;
        int maximumLength = 160;    ///< characters
        double lookShare = 0.85;    ///< of the characters that one look must have to be the paragraph's
        double largerSize = 1.12;   ///< of the body text's size; from there on letters are larger
        double wordShare = 0.12;    ///< of the document's words; a look with more is not that of headings
        double crowdedShare = 0.34; ///< of a look's paragraphs that may be followed by another of the same look
        double titleSize = 1.35;    ///< of the body text's size
        int titleParagraphs = 3;    ///< more in the largest letters are no title
    } headings;

    /// LeaderFinder: dots before page numbers.
    struct Leaders {
        unsigned fewestDots = 4;
        double shortest = 1.5;       ///< of the font size; length of a leader
        double widestGap = 1.5;      ///< of the font size; between two of its dots
        double nextColumn = 1;       ///< of the font size; a gap that ends what the leader leads to
        unsigned longestTarget = 16; ///< characters of what it leads to
    } leaders;

    /// GutterFinder: where rows are cut into lines. Shares are of the row's font size.
    struct Gutters {
        double wideGap = 0.7;          ///< two to three blanks; narrower gaps are never looked at
        double tabGap = 1.0; ///< narrower gaps that are no gutters are blanks, after full stops for instance
        double wideAgainstUsual = 1.7; ///< of the row's usual blank; justified text has wide blanks all along
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

    /// SmallCaps.
    struct SmallCaps {
        double smallestRatio = 0.65; ///< size of small capitals against that of capitals; word processors use 0.8
        double largestRatio = 0.88;
        double sameSize = 0.15;      ///< points
        double sameBaseline = 0.05;  ///< of the font size
    } smallCaps;

    /// RuleFinder and RuleMerger: lines drawn on the page.
    struct Rules {
        double straightness = 0.5;       ///< points; how far the ends of a line may be off level
        double thickest = 3.2;           ///< points; broader bars are grounds
        double thinnest = 0.1;           ///< points; width given to hairlines
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
        double shortestDouble = 6;       ///< points
        std::size_t pairReach = 64;      ///< rules looked at for the second one of a pair
        double coverCell = 2;            ///< points; grain at which a white rectangle is told to lie on a ground
    } rules;

    /// TextDecoration: rules and grounds that belong to words. Shares are of the line's font size.
    struct Decoration {
        double underlineTop = 0.02;   ///< an underline lies no higher above the baseline
        double underlineReach = 0.28; ///< nor farther below it
        double strikeBottom = 0.15;   ///< a strike lies at least this far above the baseline
        double strikeTop = 0.45;      ///< and no farther than this
        double thickest = 0.16;       ///< width of an underline
        double thickUnderline = 0.1;  ///< width from which on it is a thick one
        double slack = 0.35;          ///< how far it may begin or end off the words, a blank for instance
        double borderReach = 1;       ///< points; a rule whose end meets a rule of the other direction is a border
        double lowestHighlight = 0.8; ///< height of a ground that highlights one line
        double highestHighlight = 1.7;
        double middleOfText = 0.3; ///< height of the middle of letters above the baseline
        double indexStep = 12;     ///< points; slices of the page in which things are looked for
    } decoration;

    /// SpanBuilder: characters of one look.
    struct Spans {
        double scaleChange = 0.02;   ///< of the natural width; less does not end a span
        double leastSpacing = 0.015; ///< of the font size; less is the rounding of positions
        double spacingStep = 0.05;   ///< points; word processors' grain
    } spans;

    /// DrawingFinder: groups of paths that are drawings.
    struct Drawings {
        double gap = 5;                      ///< points; shapes of one drawing lie this close
        double smallest = 8;                 ///< points; the longer side of what is worth a figure
        double backgroundShare = 0.5;        ///< of the page; larger shapes are decoration
        double reach = 2;                    ///< points; how far rules and grounds of a drawing may stick out of it
        double growth = 12;                  ///< points; axes stand this close to the curve that they measure
        double insideShare = 0.5;            ///< of a rule's or ground's sides that must lie within
        int growthPasses = 3;                ///< times that axes and bars are looked for around a drawing
        double overlapShare = 0.5;           ///< of the smaller drawing; with more in common two are one
        unsigned wordsOfProse = 8;           ///< words of a line that is no label
        double proseShare = 0.4;             ///< of the drawing's width; shorter lines may be notes at a shape
    } drawings;

    /// FigureFinder: pictures.
    struct Pictures {
        double smallest = 3;           ///< points; the longer side of a picture that is no spacer
        double leastCrop = 0.005;      ///< of a side; less is rounding
        double tileGap = 0.75;         ///< points; strips and tiles of one picture lie this close
        double backgroundShare = 0.85; ///< of the page
    } pictures;

    /// RunningHeads: what repeats at the head and foot of pages.
    struct RunningHeads {
        double reach = 0.34;             ///< of the page's height; nothing farther from the edge is a running head
        double firstReach = 0.2;         ///< of the page's height; within which the outermost row stands
        int maximumRows = 12;            ///< from one edge
        double sameRow = 0.3;            ///< of the font size; baselines this near are one row
        double samePosition = 2.0;       ///< points; rows of two pages this near stand in one place
        double sameSize = 0.6;           ///< points; of their fonts
        double chainGap = 30.0;          ///< points; rows of one head are not farther apart
        double bodyGap = 0.35;           ///< of the font size; between a head and the text, where few pages repeat it
        int surePages = 3;               ///< a head that so many pages repeat may touch the text
        double headingSize = 1.3;        ///< of the document's usual size; larger rows that count are headings
        double sameSide = 12.0;          ///< points; distances to both sides of the page that differ by less: a centred row
        double sidePart = 5.0;           ///< points; a rule this far within a row crosses it
        double bodilessShare = 0.5;      ///< of the pages; where more would be left empty, what repeats is the text
    } runningHeads;

    /// TextEdges, PageSetup, SectionMaker: paper, margins, columns, page breaks.
    struct PageSetup {
        double sameSize = 1.5;           ///< points; paper sizes that differ by less are one
        double sameEdge = 1.5;           ///< points; lines that start this near start at one edge
        double edgeShare = 0.03;         ///< of the lines that must start at an edge for it to be the margin
        int flushLines = 5;              ///< so many justified lines show the end edge
        double blank = 0.25;             ///< of the font size; the blank before a word that had no room
        double roomSlack = 0.5;          ///< points; a line may be this much longer than measured
        double breakSlack = 1.0;         ///< points; likewise for pages
        double tidyTolerance = 0.4;      ///< points; a margin this near to a round number is meant to be it
        double usualMargin = 72.0;       ///< points; of pages that show none
        double sameColumn = 12.0;        ///< points; columns of bands that differ by less are those of one section
        double smallestColumnGap = 6.0;  ///< points; between columns
        double startRoom = 6.0;          ///< points; with so much room left on the page before, a page was started by hand
    } pageSetup;

    /// DocumentAnalyser: what most of the document looks like.
    struct Analysis {
        double sizeStep = 0.5;       ///< points; font sizes are counted in classes of this width
        double leadingStep = 0.25;   ///< points; distances between baselines are counted in classes of this width
        double maximumLeading = 3.0; ///< of the font size; lines farther apart say nothing about leading
        double minimumLeading = 0.5; ///< of the font size; lines closer together are one line, or scripts on it
        double defaultLeading = 1.2; ///< of the font size; where no two lines stand one below the other
        double edgeShare = 0.1;      ///< the text area's edge is where this share of the pages (or lines) has passed it
        int minimumWordLength = 3;   ///< bytes of UTF-8; shorter words say nothing about hyphens
    } analysis;

    /// TableFinder and its stages: what is drawn as a grid, and what words set as one.
    struct Tables {
        // The drawn grid. Producers paint borders cell by cell, so ends and positions differ by about a border's width.
        double joinGap = 3.0;  ///< points; rules that end this near to each other or to a crossing meet
        double lineSnap = 3.0; ///< points; parallel rules this near have no room for text between them: one line
        double minimumLineLength = 4.0; ///< points; shorter ones are dots, ticks, corners
        double minimumCellSide = 5.0;   ///< points; lines that overshoot the outermost crossing line by less end there
        double missingShare = 0.1;      ///< of a cell's side that may be undrawn for the side to count as drawn
        double doubledShare = 0.8; ///< of its length that a line must have a second rule beside it to be a double line
        double borderCover = 0.6;  ///< of a cell's side that rules must cover to be its border
        int maximumPlaces = 20000; ///< rows times columns; beyond it stand maps and charts

        // Words and cells.
        double straddle = 0.5;         ///< of the font size; how far a word may reach beyond its cell sideways
        double straddleHeight = 0.35;  ///< of the text's height; how far it may reach beyond its cell up or down
        double straddleShare = 0.3;    ///< of a word outside the grid that must lie within for it to be straddling
        double straddlingShare = 0.03; ///< of a table's words that may straddle

        // What is no table.
        double forcedShare = 0.15;     ///< of the cells that may come out of shapes that are no rectangles
        double filledShare = 0.5;      ///< of the cells of some row or column that must hold text
        double minimumRowHeight = 0.8; ///< of the font size; a lower row has no room for its text
        double flatShare = 0.3;        ///< of the filled cells that may be lower than their text
        double figureShare = 0.9;      ///< of a drawing's part within the table that must lie in one cell
        double frameCellShare = 0.4;   ///< of the page; a cell larger than this ...
        double frameWordShare = 0.7; ///< ... that holds this much of the table's words makes it a frame around the page

        // Words in columns.
        double pieceGap = 0.6;         ///< of the font size; a wider gap in a line may part two cells ...
        double blankStretch = 2.0;     ///< ... unless the line's narrowest blank is stretched: not less than this times it
        double widestStretch = 1.0;    ///< of the font size; blanks are stretched no further
        double textMargin = 5.4;       ///< points; what a column without rules begins before its text
        double bulletShare = 0.8;      ///< of a column that are bullets for it to be part of the next column
        double rowSnap = 0.3;          ///< of the font size; baselines this near stand side by side
        double minimumColumnGap = 0.4; ///< of the font size; narrower strips between words are word spaces in line
        int minimumRowsParted = 2;     ///< rows with words on both sides of a gap; fewer say nothing about columns
        double crossedRowShare = 0.2;  ///< of the rows that may have a text over a gap: headings over several columns
        double keptGapShare = 0.6;     ///< of the gaps that must remain when more rows join
        double wrapPitch = 1.5;        ///< of the font size; lines of one text stand no farther apart
        double samePitch = 1.1;        ///< of the smallest line distance in a table; larger ones part rows
        double besideOverlap = 0.4;    ///< of a text's height that stands beside another for both to be in one row

        double maximumRowSpace = 1.5; ///< of the font size; rows of a table stand no farther apart ...
        double rowSpaceGrowth = 1.6;  ///< ... or no farther than this times the smallest space in the table

        // Rules between rows only.
        double ruleFill = 0.75; ///< of the rules' length that the texts between them must take up
        double levelGap = 20.0; ///< points; rules of one height with a larger gap belong to two tables
        double endSnap = 6.0;   ///< points; rules above each other whose ends differ by less belong together

        // Words in columns that are no table.
        double crossingPieceShare = 0.25; ///< of the pieces that may reach over a gap
        double leaderRowShare = 0.4;      ///< of the rows that lead to a page number: contents
        double labelShare = 0.7;          ///< of the first column that are list labels: a list
        double keyShare = 0.6;            ///< of the first column that ends in a colon: keys and values
        int proseLines = 4;               ///< lines; fewer are no running text
        double proseWords = 4.0;          ///< words a line, on average
        double narrowProseWords = 2.5;    ///< words a line where every column is full of words
        double proseFill = 0.8;           ///< of the column's width; a longer line is full
        double proseFullShare = 0.6;      ///< of the lines that must be full in running text
        double proseLeading = 1.8;        ///< of the font size; lines of running text stand no farther apart
        double proseWidth = 12.0;         ///< of the font size; narrower texts are no running text
        double codeShare = 0.7;           ///< of the rows that are set in a typewriter font: a listing
        double filledRowShare = 0.5;      ///< of the rows that must have two filled cells
        double columnEdge = 0.5;          ///< of the font size; text edges of a column that differ by less are one
        double keptEdgeShare = 0.7;       ///< of a column's texts that must keep an edge where nothing is drawn
        double keptEdgeShareRuled = 0.5;  ///< the same where rules part the rows
        double raggedShare = 0.34;        ///< of the columns that may keep none
        double numericShare = 0.6;        ///< of a column's texts that are numbers: a column of numbers

        // The look of cells.
        double shadingCover = 0.6;   ///< of a cell that a ground must cover to be its shading
        double edgeTolerance = 0.15; ///< of the font size; text edges that differ by less are aligned
        double centerShare = 0.15;   ///< of the room beside a text that may be more on one side than on the other
        double uprightRoom = 0.8; ///< of the font size; with less room above and below, upright alignment shows nothing
        double uprightTolerance = 0.35; ///< of the font size; room above and below that differs by less is equal
        double baselineSnap = 0.2;      ///< of the font size; baselines in a cell this near are one line
        double tabGap = 0.8;            ///< of the font size; a wider gap between words of one line is a tab
        double paragraphPitch = 1.6;    ///< of the font size; lines of a cell farther apart are two paragraphs
        double blankWidth = 0.25;       ///< of the font size; the blank before a word that did not fit
        int maximumHeaderRows = 4;      ///< more rows that look alike are no head
        double headerLikeShare = 0.25;  ///< of the other rows that may look like the head

        // One table of the parts on several pages.
        double joinedEdge = 3.0;        ///< points; column edges of two parts that differ by less are one
        double labelledRowShare = 0.8;  ///< of the rows that must have a label for one without to be no row
    } tables;

    /// ListMarker: the labels of list items.
    struct Markers {
        double separation = 0.65; ///< of the font size; a wider gap behind the label is a tabulator's work, not a blank
    } markers;

    /// LineMeasures, ParagraphBreaks, ParagraphShape: lines of one column become paragraphs.
    struct Paragraphs {
        double edgeTolerance = 0.25;  ///< of the font size; edges closer than this are one edge
        double flushTolerance = 0.08; ///< of the font size; a justified line ends this close to the column's edge
        double fitSlack = 0.05;       ///< of the font size; what a word must leave free to have "fitted"
        double endAligned = 0.25; ///< of a line's width; with less room before it the line is full, not set to the end
        double minimumCenterIndent =
            0.9; ///< of the font size; a line with less room beside it may be a full line by chance
        double leadingTolerance = 1.15;     ///< of the usual leading; lines farther apart have space between paragraphs
        double looseLeadingTolerance = 1.4; ///< likewise where the usual leading of this font size is only guessed
        double maximumLeading = 3.0;        ///< of the font size; lines farther apart are never of one paragraph
        int leadingSamples = 3;      ///< line pairs that show a leading wider than the document's before it is believed
        double leadingShare = 0.25;  ///< of the line pairs of one font size that must show a leading for it to count
        double equalLeading = 1.03;  ///< ratio of distances up to which they are one leading
        double sameRow = 0.3;               ///< of the font size; baselines closer than this stand on one row
        double sizeChange = 1.1;            ///< ratio of font sizes from which lines look different
        double maximumFirstLine = 8; ///< of the font size; a deeper step of the left edge is no first-line indent
        int flushLines = 2;         ///< lines that must end at the edge before a shorter one ends a justified paragraph
        int justifiedLines = 3;     ///< lines flush with the edge that show a column to be justified, if they are ...
        double justifiedShare = 0.6; ///< ... this share of those that run on of themselves
        double stretchedGap = 1.06; ///< of the natural blank; wider gaps between words tell a justified line
        double ownEdge = 1.0;       ///< of the font size; lines that all end this far before the column's edge may have their own
        double proseShare = 0.6;    ///< of a block's lines that must be full, and of those whose sentence must go on, for
                                    ///< their longest to show its edge
        double fullLine = 2.5;      ///< of the font size; a column's last line with less room behind it may run on
    } paragraphs;

    /// ColumnGutter, RegionFinder: where columns are.
    struct Regions {
        double narrowGutter = 0.7; ///< of the font size; narrower gaps never part columns
        double wideGutter = 1.5;   ///< of the font size; from here on few rows are enough to believe in it
        int minimumRows = 3;       ///< rows on each side of a wide gutter
        int minimumRowsNarrow = 6; ///< rows on each side of a narrow one: blanks of justified lines meet by chance
        double minimumColumn = 8;  ///< of the font size; narrower columns are labels, not prose
        double minimumFill = 0.55; ///< share of the column that its rows cover; less is labels and values, not prose
        double columnStep = 1.0;   ///< of the font size; a line farther from its column's rows is not of the column
        std::size_t minimumEdgeLines = 10; ///< with fewer lines in a column each may be as wide as it
        double edgeShare = 0.04;   ///< of a column's lines, besides the outermost, that must end near an edge for it to be one ...
        std::size_t edgeLines = 3; ///< ... but never more than so many
        double edgeReach = 1.0;    ///< of the font size; lines that end this near to each other end at one edge
        int maximumDepth = 8;      ///< how often parts are parted again
        std::size_t maximumStrips = 200; ///< empty strips followed at once
    } regions;

    /// ReadingOrder: where tables and figures come among the lines.
    struct ReadingOrder {
        double besideShare =
            0.3; ///< of the lower of the two; a line that shares more height with a figure stands beside it
    } readingOrder;

    /// ContentsFinder: tables of contents.
    struct Contents {
        std::size_t fewestEntries = 3; ///< that follow each other
        double sureShare = 0.6;        ///< of the entries that must have a leader, or name what stands elsewhere
        double sameIndent = 3.0;       ///< points; entries that start this near to each other are of one level
        int deepestLevel = 9;          ///< that word processors know
    } contents;

    /// FrameCutter, FrameAssembler: text where it stood.
    struct TruePage {
        double widestBlank = 1.8;         ///< of the font size; text behind a wider gap has a place of its own
        double lowestPitch = 0.6;         ///< of the font size; lines nearer to each other stand side by side
        double highestPitch = 2.5;        ///< likewise; lines farther apart are of two paragraphs
        double pitchTolerance = 0.5;      ///< points; distances of lines that differ by more are no pitch
        double edgeTolerance = 1.0;       ///< points; edges of lines that differ by less are one
        double largestFirstLine = 4.0;    ///< of the font size; by how much a first line is indented, or hangs
        std::size_t fewestFlushLines = 3; ///< lines with two flush edges that are justified rather than alike by chance
        double tightSpacing =
            0.005; ///< of the font size; letters drawn nearer to each other than that need their spacing
        double roomForOtherFonts = 0.6; ///< of the text's width; where nothing is known of the widths of the font
        double room = 0.12;             ///< of the text's width; other fonts may need so much more
        double leastRoom = 6.0;         ///< points; likewise
    } truePage;
};

} // namespace orvane::layout
