#include "pictures/JpegFile.h"

#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <new>
#include <vector>

#include <jpeglib.h>

namespace orvane::pictures {
namespace {

/// Percent, of the library's scale: differences are hard to see from here on.
constexpr int kQuality = 92;

struct ErrorManager {
    jpeg_error_mgr base; // first, since the library knows only this part
    std::jmp_buf jump;
};

[[noreturn]] void onError(j_common_ptr common) {
    std::longjmp(reinterpret_cast<ErrorManager*>(common->err)->jump, 1);
}
void onMessage(j_common_ptr) {}

/// The library's encoder. An error of the library is a jump: in the members nothing with a destructor may live between
/// setjmp and the calls.
class Encoder {
public:
    explicit Encoder(std::FILE* file)
        : m_file(file) {
        m_jpeg.err = jpeg_std_error(&m_errors.base);
        m_errors.base.error_exit = onError;
        m_errors.base.output_message = onMessage;
    }
    ~Encoder() { jpeg_destroy_compress(&m_jpeg); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    bool begin(const PixelFormat& format, const Resolution& resolution) {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_create_compress(&m_jpeg);
        jpeg_stdio_dest(&m_jpeg, m_file);
        m_jpeg.image_width = static_cast<JDIMENSION>(format.width);
        m_jpeg.image_height = static_cast<JDIMENSION>(format.height);
        m_jpeg.input_components = format.kind == PixelKind::Gray ? 1 : 3;
        m_jpeg.in_color_space = format.kind == PixelKind::Gray ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_set_defaults(&m_jpeg);
        jpeg_set_quality(&m_jpeg, kQuality, TRUE);
        for (int i = 0; i < m_jpeg.num_components; ++i) // full resolution of the colours too
            m_jpeg.comp_info[i].h_samp_factor = m_jpeg.comp_info[i].v_samp_factor = 1;
        if (resolution.isKnown()) {
            m_jpeg.density_unit = 1; // dots an inch
            m_jpeg.X_density = dots(resolution.x);
            m_jpeg.Y_density = dots(resolution.y);
        }
        jpeg_start_compress(&m_jpeg, TRUE);
        if (!format.colorProfile.empty())
            jpeg_write_icc_profile(&m_jpeg, reinterpret_cast<const JOCTET*>(format.colorProfile.data()),
                                   static_cast<unsigned>(format.colorProfile.size()));
        return true;
    }
    bool row(std::uint8_t* row) {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_write_scanlines(&m_jpeg, &row, 1);
        return true;
    }
    bool end() {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_finish_compress(&m_jpeg);
        return true;
    }

private:
    static UINT16 dots(double dotsPerInch) {
        return static_cast<UINT16>(std::clamp(std::lround(dotsPerInch), 1L, 65535L));
    }

    std::FILE* m_file;
    jpeg_compress_struct m_jpeg{};
    ErrorManager m_errors{};
};

/// The library fails for want of disk or of memory only.
void require(bool isDone, OutputFile& file) {
    if (isDone)
        return;
    file.requireWritten();
    throw std::bad_alloc();
}

} // namespace

void writeJpeg(PictureRows& rows, const Resolution& resolution, OutputFile& file) {
    Encoder encoder(file.handle());
    require(encoder.begin(rows.format(), resolution), file);
    std::vector<std::uint8_t> row(rowBytes(rows.format()));
    for (int y = 0; y < rows.format().height; ++y) {
        rows.read(row.data());
        require(encoder.row(row.data()), file);
    }
    require(encoder.end(), file);
}

} // namespace orvane::pictures
