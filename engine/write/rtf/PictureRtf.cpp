#include "write/rtf/PictureRtf.h"

#include "write/LinkNames.h"
#include "write/rtf/PictureData.h"
#include "write/rtf/ShapeProperties.h"

#include <algorithm>
#include <cmath>

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr int kPictureFrame = 75;
/// Sizes of pictures are signed numbers of 16 bits.
constexpr std::int64_t kMostTwips = 32767;
constexpr double kEmuATwip = 635;
/// Shares of a picture are numbers with 16 binary places.
constexpr double kWhole = 65536;

std::int64_t twips(double emu) {
    return std::clamp<std::int64_t>(std::llround(emu / kEmuATwip), 1, kMostTwips);
}

/// What of a side stays when both its ends are cut.
double rest(double first, double second) {
    constexpr double kLeast = 0.01;
    return std::max(kLeast, 1 - std::clamp(first, 0.0, 1.0) - std::clamp(second, 0.0, 1.0));
}

void writeCrop(RtfStream& rtf, const char* word, double share, std::int64_t whole) {
    if (share > 0)
        rtf.word(word, std::llround(std::min(share, 1.0) * static_cast<double>(whole)));
}

void writeTurn(RtfStream& rtf, const Picture& picture) {
    if (picture.rotation != 0)
        writeShapeProperty(rtf, "rotation", shapeAngle(picture.rotation));
    if (picture.isMirroredHorizontally)
        writeShapeProperty(rtf, "fFlipH", 1);
    if (picture.isMirroredVertically)
        writeShapeProperty(rtf, "fFlipV", 1);
}

void writeDescription(RtfStream& rtf, const Picture& picture) {
    if (!picture.alternateText.empty())
        writeShapeProperty(rtf, "wzDescription", picture.alternateText);
}

void writeData(Story& story, const PictureStore::Entry& entry) {
    story.rtf.word(entry.format == PictureFormat::Jpeg ? "jpegblip" : "pngblip");
    story.rtf.newLine();
    // What the bytes are does not matter for the head of the file.
    if (story.state.pass == Pass::Writing)
        writeHexFile(story.rtf, entry.file);
}

/// The picture's size is written as it were without the cut. A cut picture is written at twice its size and shrunk:
/// there are readers that take the cut off the size of shrunk pictures only.
void writeSize(RtfStream& rtf, const Picture& picture, const PictureStore::Entry& entry) {
    const int enlarged = picture.crop == Crop{} ? 1 : 2;
    const auto shown = [&](Emu length, double first, double second) {
        return twips(static_cast<double>(length.value) / rest(first, second) * enlarged);
    };
    const std::int64_t width = shown(picture.width, picture.crop.left, picture.crop.right);
    const std::int64_t height = shown(picture.height, picture.crop.top, picture.crop.bottom);
    rtf.word("picw", entry.pixelWidth);
    rtf.word("pich", entry.pixelHeight);
    rtf.word("picwgoal", width);
    rtf.word("pichgoal", height);
    rtf.word("picscalex", 100 / enlarged);
    rtf.word("picscaley", 100 / enlarged);
    writeCrop(rtf, "piccropl", picture.crop.left, width);
    writeCrop(rtf, "piccropt", picture.crop.top, height);
    writeCrop(rtf, "piccropr", picture.crop.right, width);
    writeCrop(rtf, "piccropb", picture.crop.bottom, height);
}

bool isStored(Story& story, const Picture& picture) {
    if (picture.id.value != 0 && picture.id.value <= story.state.pictures.size())
        return true;
    story.state.diagnostics.add(DiagnosticKind::PictureUnreadable, picture.origin.page,
                                "a picture is missing and was left out", picture.origin.box);
    return false;
}

void writeCropProperty(RtfStream& rtf, const char* name, double share) {
    if (share > 0)
        writeShapeProperty(rtf, name, std::llround(std::min(share, 1.0) * kWhole));
}

/// Lets a click on the shape lead where the picture does. Source: Rich Text Format 1.9.1, "Hyperlinks" of shapes.
void writeShapeLink(RtfStream& rtf, const Picture& picture) {
    if (!picture.link)
        return;
    const std::string anchor = bookmarkName(picture.link->bookmark);
    const std::string address = anchor.empty() ? linkAddress(picture.link->uri) : std::string();
    if (anchor.empty() && address.empty())
        return;
    const RtfGroup property(rtf, "sp");
    {
        const RtfGroup name(rtf, "sn");
        rtf.text("pihlShape");
    }
    const RtfGroup value(rtf, "sv");
    const RtfDestination link(rtf, "hl");
    const auto part = [&rtf](const char* word, const std::string& text) {
        const RtfGroup group(rtf, word);
        rtf.text(text);
    };
    part(anchor.empty() ? "hlsrc" : "hlloc", anchor.empty() ? address : anchor);
}

} // namespace

void writeInlinePicture(Story& story, const Picture& picture) {
    if (!isStored(story, picture))
        return;
    const PictureStore::Entry entry = story.state.pictures.at(picture.id);
    const RtfGroup group(story.rtf, "pict");
    {
        const RtfDestination properties(story.rtf, "picprop");
        writeTurn(story.rtf, picture);
        writeDescription(story.rtf, picture);
    }
    writeSize(story.rtf, picture, entry);
    writeData(story, entry);
}

void writeFloatingPicture(Story& story, const Picture& picture, const Placement& placement) {
    if (!isStored(story, picture))
        return;
    const PictureStore::Entry entry = story.state.pictures.at(picture.id);
    RtfStream& rtf = story.rtf;
    const RtfGroup shape(rtf, "shp");
    const RtfDestination instance(rtf, "shpinst");
    writePlacement(story, placement, {picture.width, picture.height, picture.rotation});
    writeShapeProperty(rtf, "shapeType", kPictureFrame);
    writeTurn(rtf, picture);
    writeCropProperty(rtf, "cropFromLeft", picture.crop.left);
    writeCropProperty(rtf, "cropFromTop", picture.crop.top);
    writeCropProperty(rtf, "cropFromRight", picture.crop.right);
    writeCropProperty(rtf, "cropFromBottom", picture.crop.bottom);
    writeShapeProperty(rtf, "fLine", 0);
    writeDescription(rtf, picture);
    writeShapeLink(rtf, picture);
    const RtfGroup property(rtf, "sp");
    {
        const RtfGroup name(rtf, "sn");
        rtf.text("pib");
    }
    const RtfGroup value(rtf, "sv");
    const RtfGroup data(rtf, "pict");
    rtf.word("picw", entry.pixelWidth);
    rtf.word("pich", entry.pixelHeight);
    rtf.word("picwgoal", twips(static_cast<double>(picture.width.value)));
    rtf.word("pichgoal", twips(static_cast<double>(picture.height.value)));
    writeData(story, entry);
}

} // namespace orvane::write::rtf
