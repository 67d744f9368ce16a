#include "pdf/CodedSize.h"

#include "pdf/Jbig2Size.h"
#include "pdf/Jpeg2000Header.h"
#include "pdf/JpegHeader.h"

#include <string>
#include <string_view>

#include <Object.h>

namespace orvane::pdf {
namespace {

/// Headers stand at the start; what precedes them (profiles, dictionaries of symbols) is seldom longer.
constexpr int kHeaderReach = 1 << 18;

std::optional<PixelSize> ofJpeg(std::string_view bytes) {
    const auto header = readJpegHeader(bytes);
    return header ? std::optional(PixelSize{header->width, header->height}) : std::nullopt;
}

std::optional<PixelSize> ofJpeg2000(std::string_view bytes) {
    const auto header = readJpeg2000Header(bytes);
    return header ? std::optional(PixelSize{header->width, header->height}) : std::nullopt;
}

/// The symbols that several pictures share stand in a stream of their own.
::Object sharedSymbols(::Stream& stream) {
    ::Object parameters = stream.getDict() ? stream.getDict()->lookup("DecodeParms") : ::Object(objNull);
    if (parameters.isArray() && parameters.arrayGetLength() > 0)
        parameters = parameters.arrayGet(parameters.arrayGetLength() - 1);
    return parameters.isDict() ? parameters.dictLookup("JBIG2Globals") : ::Object(objNull);
}

std::optional<PixelSize> ofJbig2(::Stream& stream, ::Stream& coded) {
    const auto own = largestJbig2Size(codedStart(coded));
    const ::Object shared = sharedSymbols(stream);
    const auto ofShared = shared.isStream() ? largestJbig2Size(codedStart(*shared.getStream())) : std::nullopt;
    if (!own || (ofShared && ofShared->width * ofShared->height > own->width * own->height))
        return ofShared;
    return own;
}

} // namespace

std::string codedStart(::Stream& stream) {
    std::string bytes(kHeaderReach, '\0');
    stream.reset();
    const int got = stream.doGetChars(kHeaderReach, reinterpret_cast<unsigned char*>(bytes.data()));
    stream.close();
    bytes.resize(static_cast<std::size_t>(got > 0 ? got : 0));
    return bytes;
}

std::optional<PixelSize> codedSize(::Stream& stream) {
    ::Stream* coded = stream.getNextStream();
    if (!coded)
        return std::nullopt;
    switch (stream.getKind()) {
    case strDCT:
        return ofJpeg(codedStart(*coded));
    case strJPX:
        return ofJpeg2000(codedStart(*coded));
    case strJBIG2:
        return ofJbig2(stream, *coded);
    default:
        return std::nullopt;
    }
}

} // namespace orvane::pdf
