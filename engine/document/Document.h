#pragma once

#include "base/Color.h"
#include "base/Geometry.h"
#include "base/PictureData.h"
#include "base/Units.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The document that layout makes and every writer reads: values without behaviour. Texts are UTF-8.
namespace orvane::document {

/// Where an item came from; for logs, tests and pictures of what a stage saw.
struct Origin {
    int page = 0; ///< 1-based; 0 for what the engine added
    Rect box;     ///< page space
};

// ---- Characters
// ----------------------------------------------------------------------------------------------------------

enum class VerticalPosition : std::uint8_t { Baseline, Superscript, Subscript };
enum class UnderlineKind : std::uint8_t { None, Single, Double, Thick, Dotted, Dashed, Wavy };

/// How characters look, complete: a writer puts down what differs from the paragraph's style.
struct RunProperties {
    std::string fontFamily;          ///< for Latin and other simple scripts
    std::string eastAsianFontFamily; ///< empty: as fontFamily
    std::string complexFontFamily;   ///< Arabic, Hebrew, Thai, ...; empty: as fontFamily
    HalfPoints size{22};
    Color color;
    std::optional<Color> highlight; ///< behind the characters
    UnderlineKind underline = UnderlineKind::None;
    VerticalPosition verticalPosition = VerticalPosition::Baseline;
    Twips characterSpacing; ///< added after each character
    int widthPercent = 100; ///< glyphs stretched to this width
    Twips raise;            ///< baseline shift, positive upwards
    bool isBold = false;
    bool isItalic = false;
    bool isStruck = false;
    bool isSmallCaps = false;
    bool isAllCaps = false;
    bool isOutlined = false;
    bool isHidden = false;
    bool isRightToLeft = false;
    bool isEastAsian = false; ///< signs that fonts of several scripts have (quotes, dashes, dots) are East Asian
    std::string language;     ///< BCP 47; empty for the document's

    bool operator==(const RunProperties&) const = default;
};

// ---- Paragraph properties
// ------------------------------------------------------------------------------------------------

enum class Alignment : std::uint8_t { Start, Center, End, Justified, Distributed };
enum class LineSpacingRule : std::uint8_t { Multiple, AtLeast, Exact };
enum class TabAlignment : std::uint8_t { Start, Center, End, Decimal };
enum class TabLeader : std::uint8_t { None, Dots, Hyphens, Underscore, MiddleDots };
enum class BorderKind : std::uint8_t { None, Single, Double, Dotted, Dashed, Thick, Wave };

struct LineSpacing {
    LineSpacingRule rule = LineSpacingRule::Multiple;
    double multiple = 1.0; ///< LineSpacingRule::Multiple
    Twips height;          ///< the other two

    bool operator==(const LineSpacing&) const = default;
};

struct TabStop {
    Twips position; ///< from the text's start edge
    TabAlignment alignment = TabAlignment::Start;
    TabLeader leader = TabLeader::None;

    bool operator==(const TabStop&) const = default;
};

struct Border {
    BorderKind kind = BorderKind::None;
    EighthPoints width{4};
    Color color;
    int spacePoints = 0; ///< between border and text

    bool operator==(const Border&) const = default;
};

struct Borders {
    Border top, bottom, left, right;

    bool operator==(const Borders&) const = default;
};

/// How a paragraph stands, complete: a writer puts down what differs from the paragraph's style.
struct ParagraphProperties {
    Alignment alignment = Alignment::Start;
    Twips indentStart;
    Twips indentEnd;
    Twips firstLine; ///< negative: hanging
    Twips spaceBefore;
    Twips spaceAfter;
    LineSpacing lineSpacing;
    std::vector<TabStop> tabs; ///< ascending
    Borders borders;
    Border betweenBorder; ///< between equal paragraphs that follow each other
    std::optional<Color> shading;
    int outlineLevel = 0; ///< 1 to 9; 0 for body text
    bool keepWithNext = false;
    bool keepLinesTogether = false;
    bool pageBreakBefore = false;
    bool isContextualSpacing = false; ///< no space between paragraphs of one style
    bool hasWidowControl = true;
    bool isRightToLeft = false;

    bool operator==(const ParagraphProperties&) const = default;
};

// ---- Inlines
// -------------------------------------------------------------------------------------------------------------

struct Text {
    std::string text;
    RunProperties properties;
};

/// A tabulator, set in the given properties (they decide its leader's look).
struct Tab {
    RunProperties properties;
};

enum class BreakKind : std::uint8_t { Line, Column, Page };
struct Break {
    BreakKind kind = BreakKind::Line;
};

/// How much of each side of a picture is cut away, as shares of its size.
struct Crop {
    double left = 0, top = 0, right = 0, bottom = 0;
    bool operator==(const Crop&) const = default;
};

/// A picture with the size it is shown at.
struct Picture {
    PictureId id;
    Emu width; ///< before it is turned; it turns about its middle
    Emu height;
    Crop crop;
    double rotation = 0; ///< degrees clockwise
    bool isMirroredHorizontally = false;
    bool isMirroredVertically = false;
    std::string alternateText;
    Origin origin;
};

/// What a part of a formula is, and which parts of its own it has, in their order.
enum class FormulaKind : std::uint8_t {
    Text,     ///< `text`; no parts
    Row,      ///< any number, side by side; none for an empty place
    Script,   ///< base, subscript, superscript
    Limits,   ///< base, what stands below it, what stands above it
    Fraction, ///< numerator, denominator
    Radical,  ///< what it is taken of, degree
    Operator, ///< `text` is the sign: from, to, what it works on
    Fence,    ///< `text` and `closing` are the signs, either may be empty: what is within
    Accent,   ///< `text` is the combining character: what is below it
    Bar,      ///< what is below the rule
};

enum class FormulaShape : std::uint8_t { Upright, Italic, Bold, BoldItalic };

/// Where an operator has its limits.
enum class LimitPlace : std::uint8_t { AboveAndBelow, Beside };

/// A part of a formula.
struct FormulaPart {
    FormulaKind kind = FormulaKind::Row;
    std::string text;
    std::string closing;                           ///< Fence
    FormulaShape shape = FormulaShape::Upright;    ///< Text
    LimitPlace limits = LimitPlace::AboveAndBelow; ///< Operator
    std::vector<FormulaPart> parts;

    bool operator==(const FormulaPart&) const = default;
};

/// Whether a formula stands on a line of its own.
enum class FormulaPlace : std::uint8_t { Displayed, InLine };

/// A formula in its parts.
struct Formula {
    FormulaPart content;
    FormulaPlace place = FormulaPlace::InLine;
    RunProperties properties;       ///< its size and color; its shapes are those of the parts
    std::optional<Picture> picture; ///< how it looks, for readers that know no formulas
};

/// Leads to a bookmark that stands somewhere in the document, or outside it.
struct LinkTarget {
    std::string uri;      ///< outside
    std::string bookmark; ///< inside
};

/// The start of a named place; its end is where it stands.
struct Bookmark {
    std::string name; ///< letters, digits, underscores, at most 40, unique
};

enum class NoteKind : std::uint8_t { Footnote, Endnote };
struct NoteReference {
    std::size_t note = 0; ///< index into Document::notes
    RunProperties properties;
    std::string customMark; ///< empty for automatic numbering
};

struct CommentReference {
    std::size_t comment = 0; ///< index into Document::comments
};

enum class FieldCode : std::uint8_t { Page, PageCount, PageReference };

struct Inline;

struct Link {
    LinkTarget target;
    std::vector<Inline> inlines;
};

/// A field with the text it shows until it is renewed.
struct Field {
    FieldCode code = FieldCode::Page;
    std::string argument; ///< PageReference: the bookmark
    std::vector<Inline> result;
};

enum class ControlKind : std::uint8_t { Text, CheckBox, DropDown, Date };

/// A form field as a content control.
struct ContentControl {
    ControlKind kind = ControlKind::Text;
    std::string name;
    std::string tooltip;
    std::vector<std::string> choices;
    bool isChecked = false;
    bool isMultiline = false;
    std::vector<Inline> content;
};

struct Inline {
    std::variant<Text, Tab, Break, Picture, Formula, Link, Bookmark, NoteReference, CommentReference, Field,
                 ContentControl>
        value;
};

// ---- Blocks
// --------------------------------------------------------------------------------------------------------------

using StyleId = std::string;

/// Membership in a list.
struct ListReference {
    std::size_t numbering = 0; ///< index into Document::numberings
    int level = 0;             ///< 0 to 8
    bool operator==(const ListReference&) const = default;
};

struct Paragraph {
    StyleId style; ///< of Document::styles
    std::optional<ListReference> list;
    ParagraphProperties properties;
    RunProperties markProperties; ///< of the paragraph mark: decides the height of an empty paragraph
    std::vector<Inline> inlines;
    Origin origin;
};

struct Block;

enum class CellAlignment : std::uint8_t { Top, Center, Bottom };
enum class TextDirection : std::uint8_t { Horizontal, Downwards, Upwards };

struct TableCell {
    int columnSpan = 1;
    int rowSpan = 1; ///< the cells it covers in later rows are not listed there
    int column = 0;  ///< first grid column
    Borders borders; ///< left and right as seen, in right-to-left tables too; so are the margins
    std::optional<Color> shading;
    CellAlignment alignment = CellAlignment::Top;
    TextDirection direction = TextDirection::Horizontal;
    Twips marginLeft, marginRight, marginTop, marginBottom;
    std::vector<Block> blocks; ///< at least one paragraph
};

struct TableRow {
    Twips height; ///< 0 for automatic
    bool isExactHeight = false;
    bool isHeader = false; ///< repeated at the top of each page
    bool mayBreakAcrossPages = true;
    std::vector<TableCell>
        cells; ///< ascending by column; a column without a cell is covered from above or empty at the sides
};

struct Table {
    std::vector<Twips> columnWidths; ///< the grid
    std::vector<TableRow> rows;
    Twips indent; ///< of the left edge from the text's start edge
    Alignment alignment = Alignment::Start;
    bool isRightToLeft = false;
    Origin origin;
};

enum class HorizontalAnchor : std::uint8_t { Page, Margin, Column };
enum class VerticalAnchor : std::uint8_t { Page, Margin, Paragraph };
enum class Wrapping : std::uint8_t { Square, TopAndBottom, None, BehindText };

/// Where a floating object stands.
struct Placement {
    HorizontalAnchor horizontalAnchor = HorizontalAnchor::Page;
    VerticalAnchor verticalAnchor = VerticalAnchor::Page;
    Emu x;
    Emu y;
    Wrapping wrapping = Wrapping::Square;
    Emu distanceLeft, distanceRight, distanceTop, distanceBottom;
    int zOrder = 0; ///< ascending towards the reader
};

struct ShapeLine {
    Color color;
    Emu width;
    BorderKind kind = BorderKind::Single;
};

/// A drawn outline, in its own box.
struct Shape {
    enum class Verb : std::uint8_t { Move, Line, Curve, Close };
    struct Segment {
        Verb verb = Verb::Move;
        std::array<Emu, 6> xy; ///< Move, Line: first pair; Curve: two controls and the end; from the box's top left
    };
    Emu x, y, width, height; ///< within the drawing
    std::vector<Segment> segments;
    std::optional<ShapeLine> line;
    std::optional<Color> fill;
    double opacity = 1;
};

/// Shapes that belong together.
struct Drawing {
    Emu width;
    Emu height;
    std::vector<Shape> shapes; ///< in paint order
    std::string alternateText;
};

/// A picture or a drawing that floats, anchored in the paragraph that follows it.
struct Figure {
    std::variant<Picture, Drawing> content;
    Placement placement;
    Origin origin;
};

/// A box of text that floats, anchored in the paragraph that follows it.
struct Frame {
    Placement placement;
    Emu width;
    Emu height;
    Emu insetLeft, insetRight, insetTop, insetBottom;
    double rotation = 0; ///< degrees clockwise
    TextDirection direction = TextDirection::Horizontal;
    std::optional<ShapeLine> line;
    std::optional<Color> fill;
    std::vector<Block> blocks;
    Origin origin;
};

/// A list of headings with the pages they stand on, which a word processor can renew.
struct TableOfContents {
    int firstLevel = 1; ///< outline levels of the headings
    int lastLevel = 3;
    std::vector<Paragraph>
        entries; ///< as they stand until then: text, tabulator, page, mostly in a Link to the heading
};

struct Block {
    std::variant<Paragraph, Table, Figure, Frame, TableOfContents> value;
};

// ---- Sections
// ------------------------------------------------------------------------------------------------------------

enum class SectionStart : std::uint8_t { NextPage, Continuous, NextColumn, EvenPage, OddPage };
enum class NumberFormat : std::uint8_t {
    Decimal,
    LowerRoman,
    UpperRoman,
    LowerLetter,
    UpperLetter,
    Bullet,
    None,
    DecimalZero
};

struct Column {
    Twips width;
    Twips spaceAfter;
};

/// The text at the head or foot of pages. Where `firstPage` or `evenPages` is empty the standard text stands on such
/// pages too; a list without blocks keeps them blank.
struct RunningText {
    std::optional<std::vector<Block>> standard;
    std::optional<std::vector<Block>> firstPage;
    std::optional<std::vector<Block>> evenPages;
};

struct Section {
    SectionStart start = SectionStart::NextPage;
    Twips pageWidth{11906};
    Twips pageHeight{16838};
    Twips marginLeft{1440}, marginRight{1440}, marginTop{1440}, marginBottom{1440};
    Twips headerDistance{720};
    Twips footerDistance{720};
    std::vector<Column> columns; ///< empty or one: a single column
    bool hasColumnSeparator = false;
    bool isRightToLeft = false;
    bool hasVerticalText = false;
    std::optional<int> firstPageNumber;
    NumberFormat pageNumberFormat = NumberFormat::Decimal;
    RunningText header;
    RunningText footer;
    std::vector<Block> blocks;
};

// ---- Styles, lists, notes
// ------------------------------------------------------------------------------------------------

/// A named paragraph style with complete properties.
struct Style {
    StyleId id;       ///< "Heading1"
    std::string name; ///< "heading 1"
    StyleId basedOn;  ///< empty for the root
    StyleId next;     ///< style of the paragraph typed after it; empty for itself
    ParagraphProperties paragraph;
    RunProperties run;
};

struct NumberingLevel {
    NumberFormat format = NumberFormat::Decimal;
    std::string text; ///< "%1." with %n for the number of level n, or the bullet itself
    int start = 1;
    Alignment alignment = Alignment::Start;
    Twips indentStart;
    Twips firstLine;                  ///< negative: hanging
    bool isLegal = false;             ///< all numbers decimal
    std::optional<RunProperties> run; ///< of the label
};

/// One list, with its up to nine levels. A tabulator follows the label where the indent hangs, else a blank. Two lists
/// of one kind that count on their own are two numberings.
struct Numbering {
    std::vector<NumberingLevel> levels;
};

struct Note {
    NoteKind kind = NoteKind::Footnote;
    std::vector<Block> blocks; ///< without the mark, which a writer puts before the first paragraph
    Origin origin;
};

/// How footnotes are counted; endnotes go on through the whole document.
enum class NoteCount : std::uint8_t { Continuous, EachPage };

struct Comment {
    std::string author;
    std::string date; ///< ISO 8601
    std::vector<Block> blocks;
};

/// A face that travels with the document, for readers without its family.
struct EmbeddedFont {
    std::string family;
    bool isBold = false;
    bool isItalic = false;
    std::string program; ///< a whole TrueType file; it has the characters of the document only
};

struct Metadata {
    std::string title, author, subject, keywords, language;
    std::string created, modified; ///< ISO 8601
};

struct Document {
    Metadata metadata;
    std::vector<Style> styles; ///< the first is the default paragraph style
    std::vector<Numbering> numberings;
    std::vector<Note> notes;
    NoteCount footnoteCount = NoteCount::Continuous;
    std::vector<Comment> comments;
    std::vector<EmbeddedFont> fonts;
    /// Whether a line of a justified paragraph that ends with a Break is spread over the whole width, as lines within
    /// the paragraph are. It suits lines that were cut by hand where they ended on the page; a line that somebody ended
    /// early is left at its natural width.
    bool spreadsBrokenLines = false;
    /// Whether the word processor is to divide words at the ends of lines, by the rules of their language.
    bool dividesWords = false;
    std::optional<Color> pageColor; ///< of the paper; white without one
    std::vector<Section> sections;  ///< at least one
};

} // namespace orvane::document
