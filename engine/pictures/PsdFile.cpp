#include "pictures/PsdFile.h"

#include "pictures/ConvertedRows.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::pictures {
namespace {

constexpr std::uint64_t kResolutionInfo = 1005;
constexpr std::uint64_t kColorProfile = 1039;
constexpr std::uint64_t kModeGray = 1;
constexpr std::uint64_t kModeRgb = 3;
constexpr std::int64_t kCompressionMark = 2; ///< bytes: 0 for bare samples

/// A picture's channels as planes.
struct Planes {
    explicit Planes(const PixelFormat& format)
        : sampleBytes(format.kind == PixelKind::Gray16 || format.kind == PixelKind::Rgb16 ? 2 : 1)
        , count(bytesPerPixel(format.kind) / sampleBytes)
        , rowLength(static_cast<std::int64_t>(sampleBytes) * format.width)
        , length(rowLength * format.height)
        , isTransparent(hasAlpha(format)) {}

    std::size_t sampleBytes;
    std::size_t count; ///< the opacity is the last
    std::int64_t rowLength;
    std::int64_t length;
    bool isTransparent;
};

void putResource(std::uint64_t id, const std::string& data, std::string& bytes) {
    bytes += "8BIM";
    putBigEndian<2>(bytes, id);
    putBigEndian<2>(bytes, 0); // no name
    putBigEndian<4>(bytes, data.size());
    bytes += data;
    if (data.size() % 2 != 0)
        bytes += '\0';
}

std::string resources(const PixelFormat& format, const Resolution& resolution) {
    std::string bytes;
    if (resolution.isKnown()) {
        std::string info;
        for (const double value : {resolution.x, resolution.y}) {
            putBigEndian<4>(info, static_cast<std::uint64_t>(std::clamp(value, 1.0, 32767.0) * 65536 + 0.5));
            putBigEndian<2>(info, 1); // dots an inch
            putBigEndian<2>(info, 1); // lengths are shown in inches
        }
        putResource(kResolutionInfo, info, bytes);
    }
    if (!format.colorProfile.empty())
        putResource(kColorProfile, format.colorProfile, bytes);
    return bytes;
}

void putHeader(const PixelFormat& format, const Planes& planes, std::string& bytes) {
    bytes += "8BPS";
    putBigEndian<2>(bytes, 1); // version
    bytes.append(6, '\0');
    putBigEndian<2>(bytes, planes.count);
    putBigEndian<4>(bytes, static_cast<std::uint64_t>(format.height));
    putBigEndian<4>(bytes, static_cast<std::uint64_t>(format.width));
    putBigEndian<2>(bytes, 8 * planes.sampleBytes);
    putBigEndian<2>(bytes, isGray(format) ? kModeGray : kModeRgb);
    putBigEndian<4>(bytes, 0); // no palette
}

/// The record of the one layer.
std::string layerRecord(const PixelFormat& format, const Planes& planes) {
    std::string bytes;
    // Below zero: the flat picture's last channel is its opacity.
    putBigEndian<2>(bytes, 0xFFFF);
    putBigEndian<8>(bytes, 0); // top, left
    putBigEndian<4>(bytes, static_cast<std::uint64_t>(format.height));
    putBigEndian<4>(bytes, static_cast<std::uint64_t>(format.width));
    putBigEndian<2>(bytes, planes.count);
    for (std::size_t plane = 0; plane < planes.count; ++plane) {
        const bool isOpacity = plane + 1 == planes.count;
        putBigEndian<2>(bytes, isOpacity ? 0xFFFF : plane);
        putBigEndian<4>(bytes, static_cast<std::uint64_t>(planes.length + kCompressionMark));
    }
    bytes += "8BIMnorm";
    bytes += '\xFF';       // opacity of the layer as a whole
    bytes.append(3, '\0'); // no clipping, no flags
    const std::string name("\x07Picture");
    putBigEndian<4>(bytes, 8 + name.size());
    putBigEndian<8>(bytes, 0); // no mask, no blending ranges
    return bytes + name;
}

/// Writes rows of interleaved samples to planes that lie apart, a block of rows at a time.
class PlaneWriter {
public:
    PlaneWriter(const Planes& planes, OutputFile& file)
        : m_planes(planes)
        , m_file(file) {}

    /// A place where plane `i` of the picture is wanted.
    void addTarget(std::size_t plane, std::int64_t start) { m_targets.push_back({plane, start}); }

    void write(PictureRows& rows) {
        const PixelFormat& format = rows.format();
        const std::size_t length = rowBytes(format);
        const int gathered = std::clamp(static_cast<int>((std::size_t{1} << 22) / length), 1, format.height);
        std::vector<std::uint8_t> block(length * static_cast<std::size_t>(gathered));
        for (int y = 0; y < format.height; y += gathered) {
            const int count = std::min(gathered, format.height - y);
            for (int i = 0; i < count; ++i)
                rows.read(&block[static_cast<std::size_t>(i) * length]);
            for (const auto& [plane, start] : m_targets) {
                m_file.seek(start + m_planes.rowLength * y);
                const std::vector<std::uint8_t> samples =
                    takePlane(block, plane, static_cast<std::size_t>(count) * length);
                m_file.write(samples.data(), samples.size());
            }
        }
    }

private:
    std::vector<std::uint8_t> takePlane(const std::vector<std::uint8_t>& block, std::size_t plane,
                                        std::size_t length) const {
        std::vector<std::uint8_t> samples;
        samples.reserve(length / m_planes.count);
        const std::size_t step = m_planes.count * m_planes.sampleBytes;
        for (std::size_t at = plane * m_planes.sampleBytes; at < length; at += step)
            for (std::size_t byte = 0; byte < m_planes.sampleBytes; ++byte)
                samples.push_back(block[at + byte]);
        return samples;
    }

    struct Target {
        std::size_t plane;
        std::int64_t start;
    };
    const Planes& m_planes;
    OutputFile& m_file;
    std::vector<Target> m_targets;
};

/// The section of layers, its planes left out; tells the writer where they go.
void putLayer(const PixelFormat& format, const Planes& planes, std::string& bytes, PlaneWriter& writer) {
    const std::string record = layerRecord(format, planes);
    const std::int64_t data = (planes.length + kCompressionMark) * static_cast<std::int64_t>(planes.count);
    const std::int64_t content = static_cast<std::int64_t>(record.size()) + data;
    const std::int64_t padded = content + content % 2;
    putBigEndian<4>(bytes, static_cast<std::uint64_t>(padded + 8));
    putBigEndian<4>(bytes, static_cast<std::uint64_t>(padded));
    bytes += record;
    auto start = static_cast<std::int64_t>(bytes.size());
    for (std::size_t plane = 0; plane < planes.count; ++plane, start += planes.length + kCompressionMark)
        writer.addTarget(plane, start + kCompressionMark);
}

} // namespace

void writePsd(PictureRows& rows, const Resolution& resolution, OutputFile& file) {
    const PixelFormat& format = rows.format();
    const Planes planes(format);
    PlaneWriter writer(planes, file);
    std::string bytes;
    putHeader(format, planes, bytes);
    const std::string facts = resources(format, resolution);
    putBigEndian<4>(bytes, facts.size());
    bytes += facts;
    const auto layers = static_cast<std::int64_t>(bytes.size());
    std::int64_t flat = layers + 4;
    if (planes.isTransparent) {
        const auto lengthAt = bytes.size();
        putLayer(format, planes, bytes, writer);
        std::int64_t length = 0;
        for (std::size_t i = 0; i < 4; ++i)
            length = length << 8 | static_cast<unsigned char>(bytes[lengthAt + i]);
        flat = layers + 4 + length;
    } else {
        putBigEndian<4>(bytes, 0);
    }
    file.write(bytes);
    for (std::size_t plane = 0; plane < planes.count; ++plane)
        writer.addTarget(plane, flat + kCompressionMark + planes.length * static_cast<std::int64_t>(plane));
    writer.write(rows);
}

} // namespace orvane::pictures
