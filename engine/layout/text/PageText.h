#pragma once

#include "base/Color.h"
#include "base/Geometry.h"
#include "base/PictureData.h"
#include "document/Document.h"
#include "pdf/FontRequest.h"
#include "pdf/PageContent.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What the first stages make of one page on its own: lines of words, rules, figures. Positions are in page space
/// (points).
namespace orvane::layout {

/// How characters look on the page.
struct Look {
    std::uint32_t font = 0; ///< index into PageText::fonts
    double size = 10;       ///< points; of superscripts the size of the text they belong to
    Color color;
    std::optional<Color> highlight;
    document::UnderlineKind underline = document::UnderlineKind::None;
    document::VerticalPosition verticalPosition = document::VerticalPosition::Baseline;
    bool isBold = false;
    bool isItalic = false;
    bool isStruck = false;
    bool isSmallCaps = false;
    bool isOutlined = false;
    bool isInvisible = false;   ///< recognised text behind a scanned picture, that nobody sees
    bool isClippedAway = false; ///< outside the clip path: nobody sees it, and nothing stands in its place
    double horizontalScale = 1;
    double characterSpacing = 0; ///< points beyond the font's own advances, averaged over the span
    int link = -1;               ///< index into PageText::links
    int field = -1;              ///< index into PageText::fields
    int formula = -1;            ///< index into PageText::formulas, for which the span's one character stands

    bool operator==(const Look&) const = default;
};

/// Characters of one look that follow each other without a gap.
struct Span {
    std::string text; ///< UTF-8, logical order
    Look look;
    Rect box;
    double baseline = 0;
    int mark = -1;              ///< index into PageText::marks
    bool isRightToLeft = false; ///< typed as right-to-left text, be it a number or punctuation within it
};

/// What lies between a word and the one before it on the line.
enum class Gap : std::uint8_t {
    None, ///< nothing: scripts written without blanks
    Space,
    Tab, ///< a jump wider than word spacing explains
};

struct Word {
    std::vector<Span> spans;
    Rect box;
    Gap gapBefore = Gap::Space;
    int blanksBefore = 1;        ///< some people type two after a full stop, or many in place of a tabulator
    char32_t blankBefore = U' '; ///< of which kind they are
    int blanksAfter = 0;         ///< painted at the end of its line; 0 also where programs paint none there
    double blankStretch = 1;     ///< how much wider each of them is than the font's, in text that keeps its place
    bool isTypedBefore = false;  ///< blanks fill the gap, be it as wide as a Gap::Tab
    document::TabLeader leaderBefore = document::TabLeader::None; ///< what fills a Gap::Tab
    bool isRightToLeft = false;
};

/// Words on one baseline that were written as one line; a wide gap between columns ends it.
struct Line {
    std::vector<Word> words; ///< logical order
    Rect box;                ///< ascent to descent of the text, not of the ink
    double baseline = 0;     ///< y; x of the baseline for angle 90 and 270
    double fontSize = 0;     ///< of most of its characters
    double angle = 0;        ///< degrees clockwise: 0, 90, 180, 270 or another
    bool isRightToLeft = false;
    bool isVertical = false; ///< East Asian vertical writing
    int dropCapLines = 0;    ///< how many lines its first letter, a drop cap, stands over; 0 for none
    std::uint32_t firstPaintOrder = 0;
};

enum class RuleDirection : std::uint8_t { Horizontal, Vertical };

/// How a rule was painted: viewers keep a stroke visible however thin it is, a filled box gets as faint as it is thin.
enum class RulePaint : std::uint8_t { Stroked, Filled };

/// A straight line, drawn as a stroke or as a thin filled rectangle.
struct Rule {
    RuleDirection direction = RuleDirection::Horizontal;
    double position = 0; ///< y of a horizontal rule's middle, x of a vertical one's
    double from = 0;     ///< along its direction
    double to = 0;
    double width = 0.5;   ///< points; of a double rule with what lies between its two lines
    double lineWidth = 0; ///< points; of each of the two lines of a double rule
    Color color;
    document::BorderKind kind = document::BorderKind::Single;
    RulePaint paint = RulePaint::Stroked;
    bool isUsed = false; ///< taken by a stage: an underline, a strike, a table's border
    std::uint32_t paintOrder = 0;
};

/// A filled upright rectangle that may be a ground behind text: shading, a highlight, a cell.
struct Ground {
    Rect box;
    Color color;
    double opacity = 1;
    bool isUsed = false;
    std::uint32_t paintOrder = 0;
    std::optional<document::Gradient> gradient; ///< what `color` is the mean of
};

/// A picture, or a group of drawn paths that belong together.
struct Figure {
    Rect box;                   ///< as seen, clipped
    PictureId picture;          ///< 0 for a drawing that has not been painted
    bool needsPainting = false; ///< a drawing: the page's reader is to paint `box` and put the id into `picture`
    Matrix matrix;              ///< of a picture; see pdf::Picture
    document::Crop crop;
    double opacity = 1;
    bool isBackground = false;             ///< covers (nearly) the whole page, or lies under text
    bool isForeground = false;             ///< lies over text, which stays as it is
    std::optional<std::size_t> annotation; ///< the pdf::Annotation::number of the only one to paint
    std::string alternateText;
    std::vector<std::size_t> paths;           ///< of a drawing: indices into pdf::PageContent::paths
    bool holdsPicture = false;                ///< a drawing over a picture, both painted as one
    std::optional<document::Drawing> drawing; ///< what it is in shapes, if they look as it does and are few
    std::vector<Line> labels;                 ///< the text within a drawing; no line of the page
    bool showsLabels = false;                 ///< they are painted with it and need not be set
    std::uint32_t paintOrder = 0;
};

/// A formula that stands on the page as one thing.
struct Formula {
    Rect box;                                       ///< of its ink
    std::vector<Line> lines;                        ///< its text as it would be without knowing that it is a formula
    std::string text;                               ///< all of it in one line
    std::optional<document::FormulaPart> structure; ///< where it is certain
    document::FormulaPlace place = document::FormulaPlace::Displayed;
    PictureId picture;          ///< how it looks; 0 when it has not been painted
    bool needsPainting = false; ///< the page's reader is to paint `box` and put the id into `picture`
};

/// One page after the stages that need no other page.
struct PageText {
    int number = 0;
    double width = 0;
    double height = 0;
    std::vector<pdf::Font> fonts;
    std::vector<std::vector<pdf::FontCharacter>> characters; ///< that each font shows, see charactersOf()
    std::vector<Line> lines;                                 ///< top to bottom, not yet in reading order
    std::vector<Line> clippedLines; ///< that clip paths cut off, top to bottom; no part of the page's layout
    std::vector<Rule> rules;
    std::vector<Ground> grounds;
    std::vector<Figure> figures;
    std::vector<Formula> formulas;
    std::vector<pdf::Link> links;
    std::vector<pdf::Annotation> annotations;
    std::vector<pdf::FormField> fields;
    std::vector<pdf::Mark> marks;
    bool isScanned = false; ///< pictures cover the page or its text, of which (nearly) nothing is visible
};

} // namespace orvane::layout
