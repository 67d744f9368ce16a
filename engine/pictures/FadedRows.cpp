#include "pictures/FadedRows.h"

#include "pictures/ConvertedRows.h"

#include <vector>

namespace orvane::pictures {
namespace {

class FadedRows : public PictureRows {
public:
    FadedRows(std::unique_ptr<PictureRows> rows, pdf::StateMask mask)
        : PictureRows(rows->format())
        , m_rows(std::move(rows))
        , m_mask(std::move(mask))
        , m_opacity(static_cast<std::size_t>(format().width)) {}

    void read(std::uint8_t* row) override {
        m_rows->read(row);
        m_mask.read(m_next++, format().height, m_opacity);
        const std::size_t step = bytesPerPixel(format().kind);
        std::uint8_t* alpha = row + step - 1;
        for (const std::uint8_t opacity : m_opacity) {
            *alpha = static_cast<std::uint8_t>((*alpha * opacity + 127) / 255);
            alpha += step;
        }
    }
    bool isCutShort() const override { return m_rows->isCutShort(); }

private:
    std::unique_ptr<PictureRows> m_rows;
    pdf::StateMask m_mask;
    std::vector<std::uint8_t> m_opacity;
    int m_next = 0;
};

} // namespace

std::unique_ptr<PictureRows> fadeRows(std::unique_ptr<PictureRows> rows, pdf::StateMask mask) {
    const PixelKind kind = isGray(rows->format()) ? PixelKind::GrayAlpha : PixelKind::RgbAlpha;
    return std::make_unique<FadedRows>(convertRows(std::move(rows), kind), std::move(mask));
}

} // namespace orvane::pictures
