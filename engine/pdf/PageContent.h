#pragma once

#include "base/Color.h"
#include "base/Geometry.h"
#include "base/PictureData.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What one page of a PDF holds, free of the library that read it. All positions are in page space: points, origin at the top left
/// of the crop box as shown, y down, page rotation applied.
namespace orvane::pdf {

/// Whether a thing on the page can be seen, and if not, why.
enum class Visibility : std::uint8_t {
    Visible,
    Invisible,   ///< text rendering mode 3 (7 for clips): the words behind a scanned page, for instance
    OffPage,     ///< wholly outside the crop box
    ClippedAway, ///< wholly outside the clip path
    HiddenLayer, ///< optional content that is switched off; PdfDocument leaves it out
    Replaced,    ///< something else is set in its place: the sign of a check box for its drawing
};

/// A font as the page's text uses it.
struct Font {
    std::string name;        ///< PostScript name without the subset prefix, "TimesNewRomanPS-BoldMT"
    std::string family;      ///< from the font descriptor; empty when it gives none
    bool isBold = false;     ///< by flags, weight, or a whole word of the name
    bool isItalic = false;
    bool isFixedPitch = false;
    bool isSerif = false;
    bool isSymbolic = false;
    bool isMathematical = false; ///< made for formulas, by its name
    bool isVertical = false; ///< writing mode 1: glyphs follow each other downwards
    bool isEmbedded = false;
    bool isType3 = false;
    int weight = 400;        ///< 100 to 900
    double ascent = 0.8;     ///< above the baseline, in em
    double descent = 0.2;    ///< below the baseline, in em, positive
    double spaceWidth = 0.25;///< advance of the blank, in em; a guess from the other widths where the font has none
    int objectNumber = 0;

    bool operator==(const Font&) const = default;
};

/// One painted glyph.
struct Glyph {
    std::u32string unicode;        ///< what it says, ligatures in full ("ffi"); empty when unknown
    Rect box;                      ///< advance box: from origin to origin + advance, ascent to descent
    Rect ink;                      ///< what is painted of it; told of upright glyphs of mathematical fonts only
    Point origin;                  ///< on the baseline
    double advance = 0;            ///< along the baseline, points, without character and word spacing
    double fontSize = 0;           ///< points as seen on the page
    double horizontalScale = 1;    ///< width of the glyph against its natural width at fontSize
    double angle = 0;              ///< direction of the baseline, degrees clockwise from left-to-right; 90 reads downwards
    std::uint32_t font = 0;        ///< index into PageContent::fonts
    std::uint32_t charCode = 0;
    Color color;                   ///< as seen: fill colour, or stroke colour for outlined text
    bool isOutlined = false;       ///< stroked without fill
    bool isFakeBold = false;       ///< filled and stroked in one colour, or painted twice with a small offset
    bool isUnicodeGuessed = false; ///< not from the file's own map
    bool isComposed = false;       ///< an accent that was painted by itself belongs to it; `charCode` is the letter's
    Visibility visibility = Visibility::Visible;
    std::int32_t mark = -1;        ///< index into PageContent::marks; -1 outside marked content
    std::uint32_t paintOrder = 0;
    std::optional<Color> edge;     ///< another colour around it: of its stroke, or of itself painted below, a little aside
};

enum class PathVerb : std::uint8_t { Move, Line, Curve, Close };

/// One path segment: Move and Line use `to`; Curve is a cubic Bezier with the two controls; Close uses none.
struct PathSegment {
    PathVerb verb = PathVerb::Move;
    Point control1;
    Point control2;
    Point to;
};

struct StrokeStyle {
    Color color;
    double width = 1;            ///< points on the page; 0 is the thinnest line of the device
    std::vector<double> dash;    ///< on, off, ... in points; empty for a solid line
    double opacity = 1;
};

struct GradientStop {
    double position = 0;         ///< 0 at the beginning, 1 at the end
    Color color;
};

enum class GradientKind : std::uint8_t { Axial, Radial };

/// A shading whose colour changes along an axis, or from one circle to another.
struct Gradient {
    GradientKind kind = GradientKind::Axial;
    Point from;                  ///< of the axis, across which the colour stays the same; of a radial one the middle of the first circle
    Point to;
    double fromRadius = 0;       ///< of a radial one; points
    double toRadius = 0;
    bool extendsBefore = false;  ///< the first colour goes on before the beginning
    bool extendsAfter = false;
    std::vector<GradientStop> stops; ///< ascending; at least two
};

struct FillStyle {
    Color color;
    bool isEvenOdd = false;
    bool isPattern = false;      ///< a tiling pattern or a shading stands here; `color` is its mean colour
    double opacity = 1;
    std::shared_ptr<const Gradient> gradient; ///< the shading, where it is one of these
};

/// One painted path.
struct Path {
    std::vector<PathSegment> segments;
    std::optional<StrokeStyle> stroke;
    std::optional<FillStyle> fill;
    Rect box;                    ///< of the path itself, without the stroke's width
    Rect clip;                   ///< box of the clip path
    bool isSimplified = false;   ///< painted it looks otherwise: cut by an odd shape, faded by a mask, blended with what lies below
    Visibility visibility = Visibility::Visible;
    std::int32_t mark = -1;
    std::uint32_t paintOrder = 0;
};

/// One painted picture.
struct Picture {
    Matrix matrix;               ///< from the unit square (y down, picture upright) to the page
    Rect box;
    Rect clip;
    PictureId id;                ///< in the PictureStore given for reading; 0 when it could not be decoded or none was given
    int pixelWidth = 0;
    int pixelHeight = 0;
    bool isStencil = false;      ///< an image mask painted in one colour
    bool isOpaque = false;       ///< nothing of what was painted below it shows through
    double opacity = 1;
    int objectNumber = 0;        ///< 0 for an inline picture
    Visibility visibility = Visibility::Visible;
    std::int32_t mark = -1;
    std::uint32_t paintOrder = 0;
};

/// A place in the document that a link or an outline entry leads to.
struct Destination {
    int page = 0;                ///< 1-based; 0 when unresolved
    std::optional<double> top;   ///< y in page space where given
};

/// A link annotation.
struct Link {
    std::vector<Rect> boxes;     ///< one a line where the file tells (QuadPoints), else the annotation's rectangle
    std::string uri;             ///< for an outside target
    std::optional<Destination> destination; ///< for a place in this document
};

enum class AnnotationKind { Text, FreeText, Highlight, Underline, StrikeOut, Squiggly, Stamp, Ink, Shape, FileAttachment, Other };

/// An annotation that is neither a link nor a form field. FreeText, Stamp, Ink and Shape stand among the page's glyphs, paths and
/// pictures as well; the others are not painted.
struct Annotation {
    AnnotationKind kind = AnnotationKind::Other;
    Rect box;
    std::vector<Rect> quads;     ///< what a text markup covers
    std::string contents;
    std::string author;
    std::string date;            ///< ISO 8601, empty when unknown
    Color color;
    std::size_t number = 0;      ///< among all annotations of the page, links and fields too
    std::uint32_t paintedFrom = 0; ///< what it paints has a paint order from here on ...
    std::uint32_t paintedTo = 0; ///< ... and below this; equal when it paints nothing
};

enum class FieldKind { Text, CheckBox, RadioButton, ComboBox, ListBox, PushButton, Signature };

/// A form field's widget on this page. What it shows stands among the page's glyphs, paths and pictures as well.
struct FormField {
    FieldKind kind = FieldKind::Text;
    Rect box;
    std::string name;            ///< fully qualified
    std::string tooltip;
    std::string value;           ///< of a ComboBox or ListBox the choices that are shown
    std::vector<std::string> choices; ///< as they are shown
    bool isOn = false;           ///< CheckBox, RadioButton
    std::string dateFormat;      ///< Text: how it writes the dates that it takes, "dd/mm/yyyy"; empty for other fields
    bool isMultiline = false;
    bool isReadOnly = false;
    bool isEditable = false;     ///< ComboBox: takes texts that are no choice
    std::vector<std::string> choiceValues; ///< what each of `choices` stands for, where the file tells; else empty
};

/// A marked-content sequence.
struct Mark {
    std::string tag;             ///< "P", "Span", "Artifact", ...
    int mcid = -1;               ///< number into the structure tree; -1 for none
    std::string actualText;
    std::string alternateText;
    std::string language;
    std::int32_t parent = -1;    ///< index of the enclosing mark
    bool isArtifact = false;     ///< this mark or one around it is an artifact
};

/// Everything on one page.
struct PageContent {
    int number = 0;              ///< 1-based
    double width = 0;            ///< points, as shown
    double height = 0;
    int rotation = 0;            ///< what was applied: 0, 90, 180 or 270
    std::vector<Font> fonts;
    std::vector<Glyph> glyphs;   ///< in paint order
    std::vector<Path> paths;
    std::vector<Picture> pictures;
    std::vector<Link> links;
    std::vector<Annotation> annotations;
    std::vector<FormField> fields;
    std::vector<Mark> marks;
};

} // namespace orvane::pdf
