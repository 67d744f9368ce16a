#include "write/docx/PictureXml.h"

#include "write/LinkNames.h"
#include "write/docx/DrawingXml.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

constexpr std::string_view kPictureNamespace = "http://schemas.openxmlformats.org/drawingml/2006/picture";

/// A share of a picture's size as crops take it: 1000ths of a percent.
std::int64_t share(double value) {
    return std::llround(std::clamp(value, 0.0, 1.0) * 100000);
}

void writeFill(XmlWriter& xml, const Picture& picture, const std::string& relationship) {
    const XmlElement fill(xml, "pic:blipFill");
    xml.leaf("a:blip", {{"r:embed", relationship}});
    if (picture.crop != Crop{})
        xml.leaf("a:srcRect", {{"l", share(picture.crop.left)},
                               {"t", share(picture.crop.top)},
                               {"r", share(picture.crop.right)},
                               {"b", share(picture.crop.bottom)}});
    const XmlElement stretch(xml, "a:stretch");
    xml.leaf("a:fillRect");
}

void writePicture(XmlWriter& xml, const Picture& picture, const std::string& relationship, int id) {
    const XmlElement graphic(xml, "a:graphic");
    const XmlElement data(xml, "a:graphicData", {{"uri", kPictureNamespace}});
    const XmlElement pic(xml, "pic:pic");
    {
        const XmlElement identity(xml, "pic:nvPicPr");
        xml.leaf("pic:cNvPr", {{"id", id}, {"name", fmt::format("Picture {}", id)}});
        xml.leaf("pic:cNvPicPr");
    }
    writeFill(xml, picture, relationship);
    const XmlElement properties(xml, "pic:spPr");
    writeTransform(xml, {{},
                         {},
                         picture.width,
                         picture.height,
                         picture.rotation,
                         picture.isMirroredHorizontally,
                         picture.isMirroredVertically});
    const XmlElement geometry(xml, "a:prstGeom", {{"prst", "rect"}});
    xml.leaf("a:avLst");
}

/// The relationship that leads to the picture's file; empty when there is none.
std::string relationshipOf(Story& story, const Picture& picture) {
    const std::string name = story.state.media.nameOf(picture.id);
    if (name.empty()) {
        story.state.diagnostics.add(DiagnosticKind::PictureUnreadable, picture.origin.page,
                                    "a picture is missing and was left out", picture.origin.box);
        return {};
    }
    return story.relationships.add("image", name);
}

/// The relationship that leads to where the picture does; empty when it leads nowhere.
/// Source: ECMA-376 part 1, 20.1.2.2.23 (CT_Hyperlink).
std::string linkOf(Story& story, const Picture& picture) {
    if (!picture.link)
        return {};
    const std::string anchor = bookmarkName(picture.link->bookmark);
    const std::string target = anchor.empty() ? linkAddress(picture.link->uri) : "#" + anchor;
    return target.empty() ? std::string() : story.relationships.add("hyperlink", target, TargetMode::External);
}

DrawingOutline outlineOf(const Picture& picture, std::string link) {
    return {picture.width, picture.height, picture.rotation, "Picture", picture.alternateText, std::move(link)};
}

} // namespace

void writeInlinePicture(Story& story, const Picture& picture) {
    const std::string relationship = relationshipOf(story, picture);
    if (!relationship.empty())
        writeInlineDrawing(story, outlineOf(picture, {}), DrawingDialect::Picture,
                           [&](int id) { writePicture(story.xml, picture, relationship, id); });
}

void writeFloatingPicture(Story& story, const Picture& picture, const Placement& placement) {
    const std::string relationship = relationshipOf(story, picture);
    if (!relationship.empty())
        writeFloatingDrawing(story, outlineOf(picture, linkOf(story, picture)), placement, DrawingDialect::Picture,
                             [&](int id) { writePicture(story.xml, picture, relationship, id); });
}

} // namespace orvane::write::docx
