#include "layout/structure/PageBottoms.h"

#include "layout/structure/PageFloor.h"
#include "layout/structure/PageTops.h"
#include "layout/support/TidyLength.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace orvane::layout {
namespace {

/// The margins that some pages allow. Units: points.
struct MarginWindow {
    double least = 0;       ///< with less, what starts a page would have had room on the one before
    double leastSpaced = 0; ///< likewise, with the usual space above it
    double most = 0;        ///< with more, not all that stands on the pages would have had room
    double top = 0;         ///< the margin above
    double textHeight = 0;  ///< of the fullest page
    double pages = 0;
    bool isEmpty = false; ///< nothing stands on the pages
    bool isFree = false;  ///< all pages end by hand or with the document
    bool isShown = false; ///< by notes at the foot of pages that their text does not fill, so that it is the most
    PageMaking making = PageMaking::Author;
};

enum class SpaceAbove : unsigned char { Nothing, Usual };

/// Reads the window of one scheme's pages.
class WindowReader {
public:
    WindowReader(const std::vector<PageFill>& fills, const RunningScheme& scheme, PageMaking making,
                 const StructureParameters::PageSetup& limits)
        : m_fills(fills)
        , m_scheme(scheme)
        , m_making(making)
        , m_tops(findPageTops(fills, scheme, limits))
        , m_limits(limits) {}

    MarginWindow read(double pageHeight) const {
        double lowest = 0;
        for (std::size_t i = m_scheme.firstPage; i <= m_scheme.lastPage; ++i)
            lowest = std::max(lowest, m_fills[i].bottom);
        MarginWindow window;
        window.top = m_tops.margin;
        window.making = m_making;
        window.pages = static_cast<double>(m_scheme.lastPage - m_scheme.firstPage + 1);
        window.isEmpty = lowest <= window.top;
        if (window.isEmpty)
            return window;
        window.most = std::max(0.0, pageHeight - lowest);
        window.textHeight = lowest - window.top;
        const double highest = highestBottom(pageHeight, lowest, SpaceAbove::Nothing);
        const bool areEndedByHand = highest >= pageHeight || isHalfEmpty(lowest, pageHeight);
        window.isFree = areEndedByHand && !goesOnOverPages();
        // Text that comes out much higher must not reach the notes, for then it goes over to a further page.
        window.isShown = leastRoom(lowest) >= 2 * m_limits.endRoom * window.textHeight;
        window.least = pageHeight - highest + m_limits.breakSlack;
        window.leastSpaced = pageHeight - highestBottom(pageHeight, lowest, SpaceAbove::Usual) + m_limits.breakSlack;
        return window;
    }

private:
    /// Whether a page ends within a paragraph or a table, of which the next row had no room then.
    bool goesOnOverPages() const {
        for (std::size_t i = m_scheme.firstPage + 1; i <= m_scheme.lastPage; ++i)
            if (m_fills[i].isSplit)
                return true;
        return false;
    }

    /// The least room that a page leaves below its text, above the lowest edge or the notes that stand there.
    double leastRoom(double lowest) const {
        double room = std::numeric_limits<double>::infinity();
        for (std::size_t i = m_scheme.firstPage; i <= m_scheme.lastPage; ++i)
            if (const PageFill& fill = m_fills[i]; !fill.isEmpty)
                room = std::min(room, fill.room > 0 ? fill.room : lowest - fill.bottom);
        return room;
    }

    /// How high the lower edge may stand so that what starts the pages had no room on those before.
    double highestBottom(double pageHeight, double lowest, SpaceAbove space) const {
        double highest = pageHeight;
        for (std::size_t i = m_scheme.firstPage; i < m_scheme.lastPage; ++i) {
            if (startsLow(m_fills[i + 1], m_tops.of(i + 1), m_making, m_limits))
                continue; // by hand, whatever room there was
            const double gap = space == SpaceAbove::Usual ? m_fills[i + 1].gap : 0;
            const double wouldEnd = m_fills[i].bottom + gap + m_fills[i + 1].need;
            if (!m_fills[i].isEmpty && !m_fills[i + 1].isEmpty && wouldEnd > lowest)
                highest = std::min(highest, wouldEnd);
        }
        return highest;
    }

    const std::vector<PageFill>& m_fills;
    const RunningScheme& m_scheme;
    PageMaking m_making;
    PageTops m_tops;
    const StructureParameters::PageSetup& m_limits;
};

/// Any margin will do, so the text gets room to come out somewhat higher than it stood.
double roomyMargin(const MarginWindow& window, const StructureParameters::PageSetup& limits) {
    return window.most - limits.endRoom * window.textHeight;
}

double freeMargin(const MarginWindow& window, const StructureParameters::PageSetup& limits) {
    if (window.isShown)
        return window.most;
    const double roomy = roomyMargin(window, limits);
    const double least = std::min({window.most, window.top, limits.leastMargin});
    return roomy <= least ? least : tidyLengthWithin(least, roomy, window.top).value_or(least);
}

double marginWithin(const MarginWindow& window, const StructureParameters::PageSetup& limits) {
    if (window.isEmpty)
        return limits.usualMargin;
    if (window.isFree)
        return freeMargin(window, limits);
    const double slack = limits.breakSlack;
    if (window.making == PageMaking::Program)
        return std::clamp(window.least, 0.0, window.most); // nobody typed it, and text may come out somewhat higher
    // How much space there was above what starts a page is not seen; only where no margin that people type goes without
    // it is it taken to have been the usual one.
    std::optional<double> margin = tidyLengthWithin(window.least, window.most - slack, window.top);
    if (!margin)
        margin = tidyLengthWithin(window.leastSpaced, window.most - slack, window.top);
    // A margin that people type is believed to the hair.
    if (!margin)
        margin = tidyLengthWithin(window.least - slack, window.least, window.top);
    if (!margin)
        margin = tidyLength(window.least, window.most - slack, window.top, slack);
    return std::clamp(*margin, 0.0, window.most);
}

bool allows(const MarginWindow& window, double margin, const StructureParameters::PageSetup& limits) {
    if (window.isEmpty)
        return true;
    if (window.isFree && window.isShown)
        return std::abs(window.most - margin) <= limits.sameEdge;
    if (window.isFree)
        return margin <= roomyMargin(window, limits);
    return margin >= window.leastSpaced - limits.breakSlack && margin <= window.most;
}

/// The margins that suit the most pages; nullopt where no two schemes agree.
std::optional<MarginWindow> sharedWindow(const std::vector<MarginWindow>& windows,
                                         const StructureParameters::PageSetup& limits) {
    std::optional<MarginWindow> best;
    for (const MarginWindow& candidate : windows) {
        if (candidate.isEmpty || candidate.isFree)
            continue;
        MarginWindow shared = candidate;
        shared.pages = 0;
        std::size_t schemes = 0;
        for (const MarginWindow& other : windows) {
            if (other.isEmpty || other.isFree || !allows(other, candidate.least, limits))
                continue;
            shared.leastSpaced = std::max(shared.leastSpaced, other.leastSpaced);
            shared.most = std::min(shared.most, other.most);
            shared.pages += other.pages;
            ++schemes;
        }
        if (schemes > 1 && (!best || shared.pages > best->pages))
            best = shared;
    }
    return best;
}

bool hasSamePaper(const PageLayout& a, const PageLayout& b, double tolerance) {
    return std::abs(a.width - b.width) <= tolerance && std::abs(a.height - b.height) <= tolerance;
}

} // namespace

std::vector<double> findBottomMargins(const DocumentDraft& draft, const std::vector<PageFill>& fills,
                                      const std::vector<RunningScheme>& schemes, PageMaking making,
                                      const StructureParameters::PageSetup& parameters) {
    std::vector<MarginWindow> windows;
    for (const RunningScheme& scheme : schemes)
        windows.push_back(WindowReader(fills, scheme, making, parameters).read(draft.pages[scheme.firstPage].height));
    std::vector<double> margins(schemes.size(), -1);
    for (std::size_t i = 0; i < schemes.size(); ++i) {
        if (margins[i] >= 0)
            continue;
        std::vector<std::size_t> ofPaper;
        std::vector<MarginWindow> theirs;
        for (std::size_t j = i; j < schemes.size(); ++j) {
            if (!hasSamePaper(draft.pages[schemes[i].firstPage], draft.pages[schemes[j].firstPage],
                              parameters.sameSize))
                continue;
            ofPaper.push_back(j);
            theirs.push_back(windows[j]);
        }
        const auto shared = sharedWindow(theirs, parameters);
        const double margin = shared ? marginWithin(*shared, parameters) : 0;
        for (const std::size_t j : ofPaper)
            margins[j] =
                shared && allows(windows[j], margin, parameters) ? margin : marginWithin(windows[j], parameters);
    }
    return margins;
}

} // namespace orvane::layout
