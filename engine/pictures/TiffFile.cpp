#include "pictures/TiffFile.h"

#include "pictures/ConvertedRows.h"

#include <algorithm>
#include <bit>
#include <memory>
#include <new>
#include <string_view>
#include <vector>

#include <tiffio.h>

namespace orvane::pictures {
namespace {

OutputFile& fileOf(thandle_t handle) {
    return *static_cast<OutputFile*>(handle);
}

tmsize_t readBytes(thandle_t handle, void* buffer, tmsize_t count) {
    return static_cast<tmsize_t>(std::fread(buffer, 1, static_cast<std::size_t>(count), fileOf(handle).handle()));
}
tmsize_t writeBytes(thandle_t handle, void* buffer, tmsize_t count) {
    return static_cast<tmsize_t>(std::fwrite(buffer, 1, static_cast<std::size_t>(count), fileOf(handle).handle()));
}
toff_t seekTo(thandle_t handle, toff_t offset, int whence) {
    std::FILE* file = fileOf(handle).handle();
    return fseeko(file, static_cast<off_t>(offset), whence) == 0 ? static_cast<toff_t>(ftello(file))
                                                                 : static_cast<toff_t>(-1);
}
int closeNothing(thandle_t) {
    return 0; // the file goes on to belong to who opened it
}
toff_t sizeOf(thandle_t handle) {
    std::FILE* file = fileOf(handle).handle();
    const off_t position = ftello(file);
    fseeko(file, 0, SEEK_END);
    const off_t size = ftello(file);
    fseeko(file, position, SEEK_SET);
    return static_cast<toff_t>(size);
}

struct Closer {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using Tiff = std::unique_ptr<TIFF, Closer>;

Tiff openTiff(OutputFile& file) {
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    Tiff tiff(
        TIFFClientOpen("picture", "w", &file, readBytes, writeBytes, seekTo, closeNothing, sizeOf, nullptr, nullptr));
    if (!tiff)
        throw std::bad_alloc();
    return tiff;
}

void require(bool isDone, OutputFile& file) {
    if (isDone)
        return;
    file.requireWritten();
    throw std::bad_alloc();
}

int samplesOf(PixelKind kind) {
    switch (kind) {
    case PixelKind::GrayAlpha:
        return 2;
    case PixelKind::Rgb:
    case PixelKind::Rgb16:
        return 3;
    case PixelKind::RgbAlpha:
        return 4;
    default:
        return 1;
    }
}

int bitsOf(PixelKind kind) {
    switch (kind) {
    case PixelKind::Bilevel:
        return 1;
    case PixelKind::Gray16:
    case PixelKind::Rgb16:
        return 16;
    default:
        return 8;
    }
}

void describeSize(TIFF* tiff, int width, int height, const Resolution& resolution) {
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<std::uint32_t>(width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<std::uint32_t>(height));
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    if (!resolution.isKnown())
        return;
    TIFFSetField(tiff, TIFFTAG_XRESOLUTION, resolution.x);
    TIFFSetField(tiff, TIFFTAG_YRESOLUTION, resolution.y);
    TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
}

void describePalette(TIFF* tiff, const std::vector<Color>& palette) {
    std::vector<std::uint16_t> channels[3];
    for (std::vector<std::uint16_t>& channel : channels)
        channel.resize(256);
    for (std::size_t i = 0; i < palette.size(); ++i) {
        channels[0][i] = static_cast<std::uint16_t>(palette[i].red * 257);
        channels[1][i] = static_cast<std::uint16_t>(palette[i].green * 257);
        channels[2][i] = static_cast<std::uint16_t>(palette[i].blue * 257);
    }
    TIFFSetField(tiff, TIFFTAG_COLORMAP, channels[0].data(), channels[1].data(), channels[2].data());
}

void describePixels(TIFF* tiff, const PixelFormat& format) {
    const int photometric = format.kind == PixelKind::Palette ? PHOTOMETRIC_PALETTE
                            : isGray(format)                  ? PHOTOMETRIC_MINISBLACK
                                                              : PHOTOMETRIC_RGB;
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, photometric);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, bitsOf(format.kind));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, samplesOf(format.kind));
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_ADOBE_DEFLATE);
    TIFFSetField(tiff, TIFFTAG_ZIPQUALITY, 3);
    if (bitsOf(format.kind) == 8 && format.kind != PixelKind::Palette)
        TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff, 0));
    if (hasAlpha(format)) {
        std::uint16_t extra = EXTRASAMPLE_UNASSALPHA;
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &extra);
    }
    if (format.kind == PixelKind::Palette)
        describePalette(tiff, format.palette);
    if (!format.colorProfile.empty())
        TIFFSetField(tiff, TIFFTAG_ICCPROFILE, static_cast<std::uint32_t>(format.colorProfile.size()),
                     format.colorProfile.data());
}

/// Whether fax data begins with an end of a line: eleven zeros or more, and a one. Source: ITU-T T.4, 4.1.2.
bool beginsWithEndOfLine(std::string_view bytes) {
    constexpr int kLeastZeros = 11;
    int zeros = 0;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte != 0)
            return zeros + std::countl_zero(byte) >= kLeastZeros;
        zeros += 8;
    }
    return false;
}

/// The library takes samples of 16 bits in the machine's order.
void toMachineOrder(std::vector<std::uint8_t>& row) {
    for (std::size_t at = 0; at + 1 < row.size(); at += 2) {
        const auto value = static_cast<std::uint16_t>(row[at] << 8 | row[at + 1]);
        std::copy_n(reinterpret_cast<const std::uint8_t*>(&value), 2, &row[at]);
    }
}

} // namespace

void writeTiff(PictureRows& rows, const Resolution& resolution, OutputFile& file) {
    const PixelFormat& format = rows.format();
    const Tiff tiff = openTiff(file);
    describeSize(tiff.get(), format.width, format.height, resolution);
    describePixels(tiff.get(), format);
    std::vector<std::uint8_t> row(rowBytes(format));
    std::vector<std::uint8_t> packed((row.size() + 7) / 8);
    for (int y = 0; y < format.height; ++y) {
        rows.read(row.data());
        if (format.kind == PixelKind::Bilevel)
            packBits(row.data(), format.width, packed.data());
        else if (bitsOf(format.kind) == 16)
            toMachineOrder(row);
        void* stored = format.kind == PixelKind::Bilevel ? packed.data() : row.data();
        require(TIFFWriteScanline(tiff.get(), stored, static_cast<std::uint32_t>(y), 0) == 1, file);
    }
    require(TIFFWriteDirectory(tiff.get()) == 1, file);
}

bool canHoldFax(const pdf::CodedPicture& picture) {
    const pdf::FaxParameters& fax = picture.fax;
    const bool hasEnds = beginsWithEndOfLine(picture.bytes);
    if (fax.k < 0)
        return !fax.isByteAligned;
    // Readers look for group 3 rows behind ends of lines. Without these there is a name for one-dimensional rows that
    // begin at whole bytes; with both the bytes are filled in another way than in a PDF.
    return fax.isByteAligned ? fax.k == 0 && !fax.hasEndOfLine && !hasEnds : hasEnds;
}

void writeFaxTiff(const pdf::CodedPicture& picture, int height, const Resolution& resolution, OutputFile& file) {
    const pdf::FaxParameters& fax = picture.fax;
    const Tiff tiff = openTiff(file);
    describeSize(tiff.get(), fax.columns, height, resolution);
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 1);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, fax.isBlackDark ? PHOTOMETRIC_MINISWHITE : PHOTOMETRIC_MINISBLACK);
    TIFFSetField(tiff.get(), TIFFTAG_FILLORDER, FILLORDER_MSB2LSB);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, static_cast<std::uint32_t>(height));
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION,
                 fax.k < 0           ? COMPRESSION_CCITTFAX4
                 : fax.isByteAligned ? COMPRESSION_CCITTRLE
                                     : COMPRESSION_CCITTFAX3);
    if (fax.k >= 0 && !fax.isByteAligned)
        TIFFSetField(tiff.get(), TIFFTAG_GROUP3OPTIONS, fax.k > 0 ? GROUP3OPT_2DENCODING : 0);
    std::string bytes = picture.bytes; // the library may turn their bits around in place
    const auto length = static_cast<tmsize_t>(bytes.size());
    require(TIFFWriteRawStrip(tiff.get(), 0, bytes.data(), length) == length, file);
    require(TIFFWriteDirectory(tiff.get()) == 1, file);
}

} // namespace orvane::pictures
