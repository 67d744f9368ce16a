#include "pdf/InkFinder.h"

#include "base/Failure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <new>

#include <PDFDoc.h>
#include <Page.h>
#include <SplashOutputDev.h>
#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr std::chrono::seconds kTimeBudget{30};

// Coarse painting keeps what is in a square: the library takes the mean of the pixels that become one.
constexpr double kPixelsAPoint = 1;

// Of a square's darkness between paper and black; printer's dust and the grain of paper stay below it.
constexpr double kLeastInk = 0.08;

/// The shade that most pixels have in the lighter half: paper need not be white.
int paperShade(const SplashBitmap& bitmap) {
    std::array<std::size_t, 256> counts{};
    for (int y = 0; y < bitmap.getHeight(); ++y) {
        const unsigned char* row = bitmap.getDataPtr() + static_cast<std::ptrdiff_t>(y) * bitmap.getRowSize();
        for (int x = 0; x < bitmap.getWidth(); ++x)
            ++counts[row[x]];
    }
    return static_cast<int>(std::max_element(counts.begin() + 128, counts.end()) - counts.begin());
}

/// Sums of darkness, square by square.
class Squares {
public:
    Squares(const SplashBitmap& bitmap, double side)
        : m_side(side)
        , m_pixels(side * kPixelsAPoint)
        , m_columns(indexOf(bitmap.getWidth() - 1) + 1)
        , m_rows(indexOf(bitmap.getHeight() - 1) + 1)
        , m_darkness(m_columns * m_rows) {
        const int paper = paperShade(bitmap);
        for (int y = 0; y < bitmap.getHeight(); ++y) {
            const unsigned char* row = bitmap.getDataPtr() + static_cast<std::ptrdiff_t>(y) * bitmap.getRowSize();
            for (int x = 0; x < bitmap.getWidth(); ++x)
                m_darkness[indexOf(y) * m_columns + indexOf(x)] += std::max(0.0, 1 - row[x] / double(paper));
        }
    }

    std::vector<Rect> inked() const {
        std::vector<Rect> squares;
        for (std::size_t i = 0; i < m_darkness.size(); ++i) {
            const double left = m_side * static_cast<double>(i % m_columns);
            const double top = m_side * static_cast<double>(i / m_columns);
            if (m_darkness[i] >= kLeastInk * m_pixels * m_pixels)
                squares.push_back({left, top, left + m_side, top + m_side});
        }
        return squares;
    }

private:
    std::size_t indexOf(int pixel) const { return static_cast<std::size_t>(pixel / m_pixels); }

    double m_side;
    double m_pixels; ///< of a square's side
    std::size_t m_columns;
    std::size_t m_rows;
    std::vector<double> m_darkness;
};

} // namespace

std::vector<Rect> findInk(::PDFDoc& document, int page, double side, ContentRepair repair, Diagnostics& diagnostics) {
    ::Page* source = document.getPage(page);
    if (!source)
        throw Failure(FailureCode::InvalidRequest, "there is no such page to look for ink on", {page, 0});
    SplashColor paper = {255};
    SplashOutputDev device(splashModeMono8, 1, false, paper);
    device.startDoc(&document);
    TimeBudget budget(kTimeBudget);
    playPage(*source, document, device, budget, repair, {.scale = kPixelsAPoint});
    if (budget.isSpent())
        diagnostics.add(DiagnosticKind::TimeBudgetExceeded, page,
                        "the page takes too long to be searched for illustrations; the rest of it is left out");
    const SplashBitmap* bitmap = device.getBitmap();
    if (!bitmap || !bitmap->getDataPtr())
        throw std::bad_alloc();
    return Squares(*bitmap, side).inked();
}

} // namespace orvane::pdf
