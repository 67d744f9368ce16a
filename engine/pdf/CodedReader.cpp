#include "pdf/CodedReader.h"

#include "pdf/JpegPassThrough.h"
#include "pdf/SampleColors.h"

#include <GfxState.h>
#include <JBIG2Stream.h>
#include <Object.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

std::string readAll(::Stream& stream) {
    std::string bytes;
    stream.fillString(bytes);
    stream.close();
    return bytes;
}

bool hasTransparency(const PictureSource& source) {
    return source.mask || source.colorKey || source.opacityChannel != OpacityChannel::None;
}

/// What the two values of a bilevel picture look like: 1 when the upper one is light, 0 when it is dark, nothing when
/// they are not black and white. Of a stencil what is painted is dark.
std::optional<int> lightValue(const PictureSource& source) {
    if (!source.colors)
        return source.isInverted ? 0 : 1;
    if (source.colors->getNumPixelComps() != 1 || source.colors->getBits() != 1)
        return std::nullopt;
    const SampleColors colors(source);
    if (colors.kind() != PixelKind::Bilevel)
        return std::nullopt;
    return colors.table()[1] == kWhite ? 1 : 0;
}

CodedPicture readJpeg(const PictureSource& source) {
    CodedPicture coded{PictureCoding::Jpeg, readAll(*source.stream->getNextStream()), {}, {}, false};
    coded.isWhole =
        source.colors && !hasTransparency(source) && showsItsColors(coded.bytes, *source.stream, *source.colors);
    return coded;
}

CodedPicture readJbig2(const PictureSource& source) {
    CodedPicture coded{PictureCoding::Jbig2, readAll(*source.stream->getNextStream()), {}, {}, false};
    // The library shows no type information of its streams; their kind tells what they are.
    ::Object* globals = static_cast<JBIG2Stream*>(source.stream)->getGlobalsStream();
    if (globals->isStream())
        coded.globals = readAll(*globals->getStream());
    // The filter turns ink into zeros, which plain grey shows black.
    coded.isWhole = lightValue(source) == 1 && !hasTransparency(source);
    return coded;
}

std::optional<CodedPicture> readFax(const PictureSource& source) {
    auto* stream = static_cast<CCITTFaxStream*>(source.stream);
    const std::optional<int> light = lightValue(source);
    if (!light || stream->getColumns() != source.width)
        return std::nullopt;
    CodedPicture coded{PictureCoding::Fax, readAll(*stream->getNextStream()), {}, {}, !hasTransparency(source)};
    coded.fax.k = stream->getEncoding();
    coded.fax.hasEndOfLine = stream->getEndOfLine();
    coded.fax.isByteAligned = stream->getEncodedByteAlign();
    coded.fax.columns = stream->getColumns();
    coded.fax.isBlackDark = (stream->getBlackIs1() ? 1 : 0) != *light;
    return coded;
}

} // namespace

std::optional<CodedPicture> readCoded(const PictureSource& source) {
    if (!source.stream->getNextStream())
        return std::nullopt;
    switch (source.stream->getKind()) {
    case strDCT:
        return readJpeg(source);
    case strJPX:
        return CodedPicture{
            PictureCoding::Jpeg2000, readAll(*source.stream->getNextStream()), {}, {}, !hasTransparency(source)};
    case strJBIG2:
        return readJbig2(source);
    case strCCITTFax:
        return readFax(source);
    default:
        return std::nullopt;
    }
}

} // namespace orvane::pdf
