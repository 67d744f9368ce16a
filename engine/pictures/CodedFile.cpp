#include "pictures/CodedFile.h"

#include "pictures/Jbig2File.h"
#include "pictures/Jpeg2000File.h"
#include "pictures/TiffFile.h"

namespace orvane::pictures {

using pdf::PictureCoding;

std::string extensionOf(const pdf::CodedPicture& picture) {
    switch (picture.coding) {
    case PictureCoding::Jpeg:
        return "jpg";
    case PictureCoding::Jpeg2000:
        return "jp2";
    case PictureCoding::Jbig2:
        return "jb2";
    case PictureCoding::Fax:
        return canHoldFax(picture) ? "tif" : "";
    case PictureCoding::Samples:
        break;
    }
    return "";
}

void writeCoded(const pdf::CodedPicture& picture, int height, const Resolution& resolution, OutputFile& file) {
    switch (picture.coding) {
    case PictureCoding::Fax:
        writeFaxTiff(picture, height, resolution, file);
        break;
    case PictureCoding::Jbig2:
        file.write(jbig2File(picture.globals, picture.bytes));
        break;
    case PictureCoding::Jpeg2000:
        file.write(jpeg2000File(picture.bytes));
        break;
    case PictureCoding::Jpeg:
    case PictureCoding::Samples:
        file.write(picture.bytes);
        break;
    }
}

} // namespace orvane::pictures
