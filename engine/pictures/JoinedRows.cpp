#include "pictures/JoinedRows.h"

#include "pictures/ConvertedRows.h"

#include <algorithm>

namespace orvane::pictures {
namespace {

bool isSameKind(PixelFormat a, const PixelFormat& b) {
    a.width = b.width;
    a.height = b.height;
    return a == b;
}

PixelKind commonKind(const std::vector<PlacedRows>& pieces) {
    const auto all = [&](bool (*test)(const PixelFormat&)) {
        return std::all_of(pieces.begin(), pieces.end(),
                           [&](const PlacedRows& piece) { return test(piece.rows->format()); });
    };
    const bool isTransparent = !all([](const PixelFormat& format) { return !hasAlpha(format); });
    if (all(isGray))
        return isTransparent ? PixelKind::GrayAlpha : PixelKind::Gray;
    return isTransparent ? PixelKind::RgbAlpha : PixelKind::Rgb;
}

void makeAlike(std::vector<PlacedRows>& pieces) {
    const PixelFormat first = pieces.front().rows->format();
    if (std::all_of(pieces.begin(), pieces.end(),
                    [&](const PlacedRows& piece) { return isSameKind(first, piece.rows->format()); }))
        return;
    const PixelKind kind = commonKind(pieces);
    for (PlacedRows& piece : pieces)
        piece.rows = convertRows(std::move(piece.rows), kind);
}

PixelFormat wholeFormat(const std::vector<PlacedRows>& pieces, int width, int height) {
    PixelFormat format = pieces.front().rows->format();
    format.width = width;
    format.height = height;
    return format;
}

class JoinedRows : public PictureRows {
public:
    JoinedRows(std::vector<PlacedRows> pieces, int width, int height)
        : PictureRows(wholeFormat(pieces, width, height))
        , m_pieces(std::move(pieces)) {}

    void read(std::uint8_t* row) override {
        clearRow(format(), row);
        while (m_first < m_pieces.size() && m_pieces[m_first].y + m_pieces[m_first].height <= m_next)
            ++m_first;
        for (std::size_t i = m_first; i < m_pieces.size() && m_pieces[i].y <= m_next; ++i)
            m_pieces[i].rows->read(row + bytesPerPixel(format().kind) * static_cast<std::size_t>(m_pieces[i].x));
        ++m_next;
    }
    bool isCutShort() const override {
        return std::any_of(m_pieces.begin(), m_pieces.end(),
                           [](const PlacedRows& piece) { return piece.rows->isCutShort(); });
    }

private:
    std::vector<PlacedRows> m_pieces;
    std::size_t m_first = 0; ///< of the band that is read
    int m_next = 0;
};

} // namespace

std::unique_ptr<PictureRows> joinRows(std::vector<PlacedRows> pieces, int width, int height) {
    makeAlike(pieces);
    return std::make_unique<JoinedRows>(std::move(pieces), width, height);
}

} // namespace orvane::pictures
