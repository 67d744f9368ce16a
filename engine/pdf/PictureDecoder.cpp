#include "pdf/PictureDecoder.h"

#include "base/PngFile.h"
#include "pdf/JpegPassThrough.h"
#include "pdf/PictureLimits.h"
#include "pdf/SourceRows.h"

#include <fmt/format.h>

namespace orvane::pdf {

std::optional<PictureData> decodePicture(const PictureSource& source, std::string& trouble) {
    if (!isSizeSane(source.width, source.height)) {
        trouble = fmt::format("a picture of {} by {} pixels is not decoded", source.width, source.height);
        return std::nullopt;
    }
    if (source.colors && !source.mask && !source.colorKey)
        if (auto jpeg = jpegAsItStands(*source.stream, *source.colors))
            return jpeg;
    const auto rows = openRows(source, SampleDepth::Byte, trouble);
    if (!rows)
        return std::nullopt;
    PictureData picture = encodePng(*rows);
    if (rows->isCutShort())
        trouble = "a picture's data breaks off";
    return picture;
}

} // namespace orvane::pdf
