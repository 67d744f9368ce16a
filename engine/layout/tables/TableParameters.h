#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `tables`: what is drawn as a grid, and what words set as one. A field says its unit, its
/// meaning and what taught its value.
struct TableParameters {
    /// TableFinder and its stages: what is drawn as a grid, and what words set as one.
    struct Tables {
        // The drawn grid. Producers paint borders cell by cell, so ends and positions differ by about a border's width.
        double joinGap = 3.0;     ///< points; rules that end this near to each other or to a crossing meet
        double lineSnap = 3.0;    ///< points; parallel rules this near have no room for text between them: one line
        double borderReach = 1.0; ///< points; a rule within a table this near to a cell's side is a border of it, ...
        double borderShare = 0.9; ///< ... and one as near as lineSnap that runs along as much of the side
        double minimumLineLength = 4.0; ///< points; shorter ones are dots, ticks, corners
        double minimumCellSide = 5.0;   ///< points; lines that overshoot the outermost crossing line by less end there
        double missingShare = 0.1;      ///< of a cell's side that may be undrawn for the side to count as drawn
        double doubledShare = 0.8; ///< of its length that a line must have a second rule beside it to be a double line
        double borderCover = 0.6;  ///< of a cell's side that rules must cover to be its border
        double smallestCheckBox = 5.0; ///< points; the side of a square that may be one to tick
        double largestCheckBox = 16.0; ///< points; larger squares are cells
        double checkBoxSnap = 1.5;     ///< points; how far the ends of its sides may miss each other
        double checkBoxTouch = 0.6;    ///< points; rules this near to a side's end go on from it
        double nestedMargin = 8.0;     ///< points; the empty strips beside a table within a cell are no wider
        int fewestDividers = 3;        ///< lines that end at one height within a cell for it to hold a row of cells
        int maximumPlaces = 20000;     ///< rows times columns; beyond it stand maps and charts

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
        double frameCellShare = 0.5;   ///< of the page; a cell larger than this ...
        double frameWordShare = 0.7; ///< ... that holds this much of the table's words makes it a frame around the page
        int mostFrameCells = 6;      ///< cells with text of such a frame; more are the fields of a form

        // Words in columns.
        double pieceGap = 0.6;      ///< of the font size; a wider gap in a line may part two cells ...
        double blankStretch = 2.0;  ///< ... unless the line's narrowest blank is stretched: not less than this times it
        double widestStretch = 1.0; ///< of the font size; blanks are stretched no further
        double startSnap = 0.7;     ///< points; texts that begin this near to each other begin at one edge
        double blankSlack = 0.03;   ///< of the font size; blanks of one text differ by less
        double headCenter = 0.2;    ///< of a column's width; how far the middle of a head may miss that of its columns
        double headRuleShare = 0.9; ///< of a table's width; a rule below a head of some columns is shorter
        double textMargin = 5.4;    ///< points; what a column without rules begins before its text
        double bulletShare = 0.8;   ///< of a column that are bullets for it to be part of the next column
        double sameBaseline = 0.5;  ///< points; words whose baselines are this near stand on one
        double touch = 0.5;         ///< points by which neighbours on a baseline may overlap
        double rowSnap = 0.3;       ///< of the font size; baselines this near stand side by side
        double minimumColumnGap = 0.4; ///< of the font size; narrower strips between words are word spaces in line
        int minimumRowsParted = 2;     ///< rows with words on both sides of a gap; fewer say nothing about columns
        double crossedRowShare = 0.2;  ///< of the rows that may have a text over a gap: headings over several columns
        double keptGapShare = 0.6;     ///< of the gaps that must remain when more rows join
        double wrapPitch = 1.5;        ///< of the font size; lines of one text stand no farther apart
        double samePitch = 1.1;        ///< of the smallest line distance in a table; larger ones part rows
        double besideOverlap = 0.4;    ///< of a text's height that stands beside another for both to be in one row

        double maximumRowSpace = 1.5; ///< of the font size; rows of a table stand no farther apart ...
        double rowSpaceGrowth = 1.6;  ///< ... or no farther than this times the smallest space in the table
        double widestRowSpace = 4.0;  ///< of the font size; rows of many texts stand no farther apart
        std::size_t fullRow = 4;      ///< texts side by side that are many
        std::size_t alignedRow = 3;   ///< ... or so many that each stand below one of a row of many

        // Columns as close together as words.
        double unevenTexts = 0.3;       ///< of the font size by which the lengths of texts must differ to say something
        double tightCrossedShare = 0.1; ///< of the rows that may have a word over the place where the right one begins

        // Rows of several lines with space between them.
        double rowSpaceJump = 0.25;   ///< of the font size; by that much the least space between rows exceeds ...
        double widestLineSpace = 0.5; ///< of the font size; ... the widest between lines, which is no larger

        // Parties side by side that are to sign.
        std::size_t leastUnderscores = 8; ///< one after the other that leave room for a signature

        // Cells that grounds show.
        double filledSnap = 1.5;       ///< points; edges of grounds that differ by less meet
        double groundRowBlank = 1.0;   ///< of the font size; texts of rows between grounds stand no farther apart
        double groundNeighbour = 4.0;  ///< of the font size; a text this near beside a row of grounds belongs to it
        double filledRoom = 1.5;       ///< points; between where two filled cells meet and the words beside
        std::size_t fewestStripes = 2; ///< grounds below each other with the same ends, each behind a row
        double stripeStep = 12;        ///< points; height of the slices in which they are looked up
        double filledTextShare = 0.8;  ///< of the texts that must stand in filled cells for these to show the table

        // Texts that came on one row though they are of texts side by side.
        double sameTextSize = 0.1;   ///< of the row's font size; texts of other sizes need not stand level
        double levelTexts = 0.25;    ///< of the font size; baselines that differ by no more are level
        double levelShare = 1.0 / 3; ///< of the rows that stand level; with no more it is no table
        double droppedShare = 0.75;  ///< of the rows in which one text stands as far above the others, or level
        int fewestRowsInStep = 2;    ///< with texts of one size, to tell

        // Forms: boxes to fill in beside their labels.
        double leastFieldHeight = 7.0;   ///< points; lower boxes have no room for text
        double leastFieldWidth = 14.0;   ///< points; narrower ones are squares to tick
        double closedShare = 0.8;        ///< of a drawn table's cells that are closed on all sides
        double formRowSpace = 48.0;      ///< points; rows of fields with more between them are of two forms
        double formBarShare = 0.5;       ///< of a form's width; a bar behind a heading is wider
        std::size_t fewestFields = 3;    ///< with labels, to make a form unless they are fields of the PDF itself
        std::size_t mostLabelWords = 40; ///< of a field; more are a text of its own
        int mostLinesBetweenFields = 2;  ///< of text between two rows of fields of one form
        double openFieldShare = 0.5;     ///< of a form's fields that are blank, or fields of the PDF itself
        double labelledFieldShare = 0.5; ///< of a form's fields that have a label before them

        // Rows and columns of a drawn grid between which no rule is drawn.
        int fewestPartedRows = 3;   ///< lines of text, or cells, that must show them
        double numberedShare = 0.8; ///< of a cell's lines that must be numbers for it to list them
        std::size_t fewestPairedLines =
            3; ///< side by side in drawn columns as wide as they are, to be rows below a head
        std::size_t fewestPairedLinesAnywhere = 6; ///< side by side in drawn columns of any width to be rows

        // Rules between rows only.
        double ruleFill = 0.75;           ///< of the rules' length that the texts between them must take up
        double levelGap = 20.0;           ///< points; rules of one height with a larger gap belong to two tables
        std::size_t fewestRulePieces = 3; ///< of one height that may be one rule over all columns
        double widestRuleGap = 40.0;      ///< points; between such pieces
        double endSnap = 6.0;             ///< points; rules above each other whose ends differ by less belong together
        int fewestTotalRules = 3;         ///< rules at the totals of a table whose first rows stand above all of them
        double headReach = 10.0;          ///< of the font size; no head above the first rule is higher
        double headSpace = 0.8;           ///< of the font size; its lines, and the rule below them, are this close
        double bodyReach = 10.0;          ///< of the font size; rows below the last rule are not farther apart
        double openProseShare = 0.55;     ///< of the last rule's length; a text alone in its row that is longer runs on

        // Labels and their values.
        int longestValue = 8;           ///< lines; longer ones are running text beside a title
        double leastLabelRoom = 5.0;    ///< of the font size; values that begin nearer to their labels hang from them
        double runningLabelShare = 0.2; ///< of the labels that may go on in the next one: a column of running text
        double fullValueShare = 0.5;    ///< of the values that may end where the next one's first word has no room

        // Words in columns that are no table.
        double crossingPieceShare = 0.25; ///< of the pieces that may reach over a gap
        double leaderRowShare = 0.4;      ///< of the rows that lead to a page number: contents
        double fallingShare = 0.2;      ///< of a column's numbers that are less than those above: no pages of contents
        double brokenNumberShare = 0.5; ///< of a column's numbers that have a comma or point: amounts
        double labelShare = 0.7;        ///< of the first column that are list labels: a list
        double keyShare = 0.6;          ///< of the first column that ends in a colon: keys and values
        std::size_t fewestColumnEntries = 3; ///< of an index in each of its columns ...
        std::size_t fewestEntries = 8;       ///< ... and in all of them
        double fallingEntryShare = 0.15;     ///< of its entries that may not follow the alphabet
        double commaShare = 0.5;             ///< of a typewriter's texts that may end in a comma: lists of a program
        int proseLines = 4;                  ///< lines; fewer are no running text
        double proseWords = 4.0;             ///< words a line, on average
        double narrowProseWords = 2.5;       ///< words a line where every column is full of words
        double proseFill = 0.8;              ///< of the column's width; a longer line is full
        double proseFullShare = 0.6;         ///< of the lines that must be full in running text
        double proseLeading = 1.8;           ///< of the font size; lines of running text stand no farther apart
        double proseWidth = 12.0;            ///< of the font size; narrower texts are no running text
        double commentShare = 0.5;           ///< of a column's texts that begin as comments of a program do
        double codeShare = 0.7;              ///< of the rows that are set in a typewriter font: a listing
        double filledRowShare = 0.5;         ///< of the rows that must have two filled cells
        double columnEdge = 0.5;             ///< of the font size; text edges of a column that differ by less are one
        double keptEdgeShare = 0.7;          ///< of a column's texts that must keep an edge where nothing is drawn
        double keptEdgeShareRuled = 0.5;     ///< the same where rules part the rows
        double raggedShare = 0.34;           ///< of the columns that may keep none
        double numericShare = 0.6;           ///< of a column's texts that are numbers: a column of numbers
        double headNumberShare = 0.33;       ///< of the texts in a row; with more numbers it is not of the head

        // The look of cells.
        double shadingCover = 0.6;   ///< of a cell that a ground must cover to be its shading
        double edgeTolerance = 0.15; ///< of the font size; text edges that differ by less are aligned
        double centerShare = 0.15;   ///< of the room beside a text that may be more on one side than on the other
        double uprightRoom = 0.8; ///< of the font size; with less room above and below, upright alignment shows nothing
        double footRoom = 1.2;    ///< of the font size; a text at its cell's foot has no more room below
        double uprightTolerance = 0.35; ///< of the font size; room above and below that differs by less is equal
        double baselineSnap = 0.2;      ///< of the font size; baselines in a cell this near are one line
        double signSnap = 0.6;          ///< likewise, of an arrow or a box of another font beside the text
        double tabGap = 0.8;            ///< of the font size; a wider gap between words of one line is a tab
        double blankWidth = 0.25;       ///< of the font size; the blank before a word that did not fit
        int maximumHeaderRows = 4;      ///< more rows that look alike are no head
        double headerLikeShare = 0.25;  ///< of the other rows that may look like the head

        double captionReach = 3.0; ///< font sizes; between a table and the first line of its caption

        // One table of the parts on several pages.
        double joinedEdge = 3.0;        ///< points; column edges of two parts that differ by less are one
        double labelledRowShare = 0.8;  ///< of the rows that must have a label for one without to be no row
        std::size_t fewestLabelled = 4; ///< rows that must all have labels for one without to end the row before
    } tables;
};

} // namespace orvane::layout
