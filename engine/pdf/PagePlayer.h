#pragma once

#include "base/Geometry.h"
#include "pdf/ThreadTime.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>

class Annot;
class OutputDev;
class PDFDoc;
class Page;

namespace orvane::pdf {

/// Ends content that would go on for ever: forms that call each other in endless variations, millions of operators.
/// Thread: used by the one that made it, whose processor time it counts.
class TimeBudget {
public:
    explicit TimeBudget(std::chrono::milliseconds budget)
        : m_end(threadTime() + budget) {}

    bool isSpent() {
        m_isSpent = m_isSpent || threadTime() > m_end;
        return m_isSpent;
    }
    /// The library's abort callback; `budget` is a TimeBudget.
    static bool isSpent(void* budget) { return static_cast<TimeBudget*>(budget)->isSpent(); }

private:
    std::chrono::nanoseconds m_end;
    bool m_isSpent = false;
};

/// Whether an annotation is part of what stands on the page: filled form fields, typed text, stamps and drawings are;
/// marks on the text, notes and links are told apart from the content. Signature of the library's callback.
bool isPartOfPage(::Annot* annotation, void* unused);

/// How a page's content is taken: as it stands, or without restores of states that were never saved.
enum class ContentRepair : std::uint8_t { None, SurplusRestores };

/// The part of a page that a painting device gets, in its pixels.
struct PageSlice {
    double scale = 1; ///< pixels a point
    int x = -1;       ///< -1 for the whole page
    int y = -1;
    int width = -1;
    int height = -1;
};

/// The pixels that cover a part of the page at `scale` pixels a point.
PageSlice sliceOf(const Rect& region, double scale);

/// Which annotations are played with a page.
enum class PlayedAnnotations : std::uint8_t {
    PartOfPage, ///< see isPartOfPage()
    All,        ///< all that are shown
};

/// Told of each annotation that is played, by its place among all of the page.
struct AnnotationWatch {
    std::function<void(std::size_t)> before;
    std::function<void(std::size_t)> after;
};

/// Interprets a page's content and its annotations on a device. Without a slice the device's space is page space.
void playPage(::Page& page, ::PDFDoc& document, ::OutputDev& device, TimeBudget& budget, ContentRepair repair,
              const PageSlice& slice = {}, PlayedAnnotations annotations = PlayedAnnotations::PartOfPage,
              const AnnotationWatch& watch = {});

/// Interprets one annotation of a page on a device, and nothing else of it.
void playAnnotation(::Page& page, std::size_t number, ::PDFDoc& document, ::OutputDev& device, TimeBudget& budget,
                    const PageSlice& slice);

} // namespace orvane::pdf
