#pragma once

#include "document/Drawing.h"
#include "document/Format.h"
#include "document/Formula.h"
#include "document/LinkTarget.h"
#include "document/Picture.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The document that layout makes and every writer reads: values without behaviour. Texts are UTF-8.
namespace orvane::document {

// ---- Inlines

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

enum class ControlKind : std::uint8_t {
    Text,
    CheckBox,
    RadioButton, ///< as a check box with a round sign: word processors know no others
    DropDown,
    ComboBox, ///< a list that takes other texts too
    Date
};

/// A form field as a content control.
struct ContentControl {
    ControlKind kind = ControlKind::Text;
    std::string name; ///< empty for boxes to tick that are drawn and no fields of a form
    std::string tooltip;
    std::vector<std::string> choices;
    bool isChecked = false; ///< CheckBox, RadioButton
    bool isMultiline = false;
    std::vector<Inline> content;
    std::vector<std::string> choiceValues = {}; ///< what each of `choices` stands for; shorter where that is the choice
};

struct Inline {
    std::variant<Text, Tab, Break, Picture, Formula, Link, Bookmark, NoteReference, CommentReference, Field,
                 ContentControl>
        value;
};

// ---- Blocks

using StyleId = std::string;

/// Membership in a list.
struct ListReference {
    std::size_t numbering = 0; ///< index into Document::numberings
    int level = 0;             ///< 0 to 8
    bool operator==(const ListReference&) const = default;
};

/// Where a paragraph goes on on a later page of the source.
struct PageTurn {
    int page = 0;            ///< 1-based
    std::size_t letters = 0; ///< letters and digits of the paragraph's runs before it
};

enum class DropCapKind : std::uint8_t {
    Dropped, ///< the lines beside it are shorter
    InMargin
};

/// The first letters of a paragraph set over several of its lines.
struct DropCap {
    DropCapKind kind = DropCapKind::Dropped;
    int lines = 3;
    Twips height;   ///< of these lines
    Twips distance; ///< to the text beside it
};

struct Paragraph {
    StyleId style; ///< of Document::styles
    std::optional<ListReference> list;
    ParagraphProperties properties;
    RunProperties markProperties; ///< of the paragraph mark: decides the height of an empty paragraph
    std::vector<Inline> inlines;
    Origin origin;
    std::vector<PageTurn> turns;    ///< ascending
    std::optional<DropCap> dropCap; ///< which the first Text among the inlines is
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

/// A picture or a drawing that floats, anchored in the paragraph that follows it.
struct Figure {
    std::variant<Picture, Drawing> content;
    Placement placement;
    Origin origin;
};

/// Whether a frame may become higher than it is made.
enum class FrameGrowth : std::uint8_t {
    WithText,
    Never, ///< text below its foot is not to be seen
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
    FrameGrowth growth = FrameGrowth::WithText;
    std::vector<Block> blocks;
    Origin origin;
};

/// Text that turns out higher than its box is cut off where the box is seen; one that nobody sees grows instead.
inline bool growsWithText(const Frame& frame) {
    return frame.growth == FrameGrowth::WithText && !frame.fill && !frame.line;
}

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

enum class SectionStart : std::uint8_t { NextPage, Continuous, NextColumn, EvenPage, OddPage };
enum class NumberFormat : std::uint8_t {
    Decimal,
    LowerRoman,
    UpperRoman,
    LowerLetter,
    UpperLetter,
    Bullet,
    None,
    DecimalZero,
    Symbols ///< *, †, ‡, §, and then two of each, and so on
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

/// Where numbers start anew.
enum class CountStart : std::uint8_t { Continuous, EachSection, EachPage };

/// Numbers in the margin beside the lines of the text.
struct LineNumbers {
    int every = 1; ///< shown beside each such line: 5 for 5, 10, 15
    int start = 1;
    CountStart count = CountStart::EachPage;
    Twips distance; ///< to the text; 0 for what word processors take
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
    std::optional<LineNumbers> lineNumbers;
};

// ---- Styles, lists, notes

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
    /// The tab stop at which the text after the label starts where no indent hangs; nothing lets a blank part them.
    std::optional<Twips> textStart;

    /// Whether a tabulator follows the label, else a blank: without an indent or a stop of its own it would leap to
    /// the next default one.
    bool isTabBehindLabel() const { return firstLine < Twips(0) || textStart; }
};

/// One list, with its up to nine levels. Two lists of one kind that count on their own are two numberings.
struct Numbering {
    std::vector<NumberingLevel> levels;
};

struct Note {
    NoteKind kind = NoteKind::Footnote;
    std::vector<Block> blocks; ///< without the mark, which a writer puts before the first paragraph
    Origin origin;
};

/// How the marks of notes of one kind are counted.
struct NoteNumbering {
    NumberFormat format = NumberFormat::Decimal;
    CountStart count = CountStart::Continuous;

    bool operator==(const NoteNumbering&) const = default;
};

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
    NoteNumbering footnoteNumbering;
    NoteNumbering endnoteNumbering{NumberFormat::LowerRoman, CountStart::Continuous};
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
    /// Whether the left margin of even pages is the right one of odd pages, and the other way round, as in books. The
    /// sections have the margins of odd pages.
    bool hasMirroredMargins = false;
};

} // namespace orvane::document
