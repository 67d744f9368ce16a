#include "layout/page/EmptyStrips.h"

#include <utility>

namespace orvane::layout {
namespace {

/// An empty rectangle that reaches down as far as has been read.
struct Strip {
    double left;
    double right;
    double top;
};

/// Sweeps down over the pieces and collects the empty strips between them, each as high as it gets.
class StripSweep {
public:
    StripSweep(double narrowest, std::size_t limit)
        : m_narrowest(narrowest)
        , m_limit(limit) {}

    std::vector<Rect> run(std::span<const GutterPiece> pieces, const Rect& area) {
        m_open.push_back({area.left, area.right, area.top});
        for (const GutterPiece& piece : pieces)
            pass(piece, area);
        for (const Strip& strip : m_open)
            close(strip, area.bottom);
        return std::move(m_closed);
    }

private:
    void pass(const GutterPiece& piece, const Rect& area) {
        std::vector<Strip> next;
        for (const Strip& strip : m_open) {
            if (piece.box.right <= strip.left || piece.box.left >= strip.right) {
                next.push_back(strip);
                continue;
            }
            close(strip, piece.box.top);
            addUnlessCovered(next, {strip.left, piece.box.left, strip.top});
            addUnlessCovered(next, {piece.box.right, strip.right, strip.top});
        }
        addUnlessCovered(next, {area.left, area.right, piece.box.bottom});
        // Strips far beyond what a page of columns needs come from drawings made of letters; the oldest matter most.
        if (next.size() > m_limit)
            next.resize(m_limit);
        m_open = std::move(next);
    }

    void addUnlessCovered(std::vector<Strip>& strips, const Strip& strip) const {
        if (strip.right - strip.left < m_narrowest)
            return;
        for (const Strip& other : strips)
            if (other.left <= strip.left && other.right >= strip.right && other.top <= strip.top)
                return;
        strips.push_back(strip);
    }

    void close(const Strip& strip, double bottom) {
        if (bottom > strip.top)
            m_closed.push_back({strip.left, strip.top, strip.right, bottom});
    }

    double m_narrowest;
    std::size_t m_limit;
    std::vector<Strip> m_open;
    std::vector<Rect> m_closed;
};

} // namespace

std::vector<Rect> findEmptyStrips(std::span<const GutterPiece> pieces, const Rect& area, double narrowest,
                                  std::size_t limit) {
    return StripSweep(narrowest, limit).run(pieces, area);
}

} // namespace orvane::layout
