#include "worker/ContentAudit.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"
#include "worker/WrittenContent.h"

#include <algorithm>
#include <cmath>
#include <string>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

constexpr double kSameLength = 1; // points

/// Compares one page.
class PageAudit {
public:
    PageAudit(const PageInventory& page, const WrittenContent& written, Diagnostics& diagnostics)
        : m_page(page)
        , m_written(written)
        , m_diagnostics(diagnostics) {
        if (const auto found = written.pages.find(page.page); found != written.pages.end())
            m_ofPage = found->second;
    }

    /// `notes`: letters of notes that may go on from the page before. Gives those that may go on after this one.
    std::size_t compareLetters(std::size_t notes) {
        notes += m_ofPage.noteLetters;
        const std::size_t inText = std::min(m_ofPage.letters + digitsBesideLines(), m_page.letters);
        const std::size_t inNotes = std::min(notes, m_page.letters - inText);
        tell(m_page.letters - inText - inNotes, m_page.letters, "letters");
        return notes - inNotes;
    }

    void comparePictures() {
        if (m_page.isScanned)
            return;
        const auto isMissing = [&](const Rect& picture) {
            return !isCovered(picture, m_ofPage.figures) && !isCovered(picture, m_written.runningFigures);
        };
        tell(static_cast<std::size_t>(std::count_if(m_page.pictures.begin(), m_page.pictures.end(), isMissing)),
             m_page.pictures.size(), "pictures");
    }

    void compareLinks() {
        for (const std::string& address : m_page.addresses)
            if (!m_written.addresses.contains(address))
                m_diagnostics.add(DiagnosticKind::ContentLeftOut, m_page.page,
                                  fmt::format("the link to {} is not in the document", address));
        const std::size_t written = std::min(m_ofPage.innerLinks, m_page.innerLinks);
        tell(m_page.innerLinks - written, m_page.innerLinks, "links within the document");
    }

    /// The number of values that stand in the document.
    std::size_t compareValues(const AuditScope& scope) {
        std::size_t written = 0;
        for (const FieldValue& value : m_page.values) {
            if (isWritten(value, scope))
                ++written;
            else
                m_diagnostics.add(DiagnosticKind::ContentLeftOut, m_page.page,
                                  fmt::format("the value of the field \"{}\" is not in the document", value.name));
        }
        return written;
    }

private:
    bool isWritten(const FieldValue& value, const AuditScope& scope) const {
        if (value.isSign)
            return !scope.hasControls || m_written.checkedNames.contains(value.name);
        std::u32string text = utf32FromUtf8(value.value);
        std::erase_if(text, [](char32_t c) { return layout::isBlank(c) || c < U' '; });
        return m_ofPage.text.find(utf8FromUtf32(text)) != std::string::npos;
    }

    /// At most so many of the numbers in the margin, which the word processor counts.
    std::size_t digitsBesideLines() const {
        constexpr std::size_t kDigits = 4;
        const auto every = static_cast<std::size_t>(m_ofPage.numbersEvery);
        return every == 0 ? 0 : kDigits * (m_page.lines / every + 1);
    }

    /// On pages that lay on their side figures stand elsewhere, in the same size.
    static bool isTurned(const Rect& picture, const Rect& figure) {
        const bool isSquare = std::abs(picture.width() - picture.height()) < kSameLength;
        return !isSquare && std::abs(picture.width() - figure.height()) < kSameLength &&
               std::abs(picture.height() - figure.width()) < kSameLength;
    }

    static bool isCovered(const Rect& picture, const std::vector<Rect>& figures) {
        constexpr double kMostOfIt = 0.5;
        double covered = 0;
        for (const Rect& figure : figures) {
            if (isTurned(picture, figure))
                return true;
            covered += picture.intersected(figure).area();
        }
        return covered >= kMostOfIt * picture.area();
    }

    void tell(std::size_t missing, std::size_t all, const char* what) {
        if (missing > 0)
            m_diagnostics.add(DiagnosticKind::ContentLeftOut, m_page.page,
                              fmt::format("{} of {} {} are not in the document", missing, all, what));
    }

    const PageInventory& m_page;
    const WrittenContent& m_written;
    WrittenPage m_ofPage;
    Diagnostics& m_diagnostics;
};

} // namespace

protocol::Counts auditContent(const std::vector<PageInventory>& pages, const document::Document& document,
                              const AuditScope& scope, Diagnostics& diagnostics) {
    const PageSpan source = pages.empty() ? PageSpan{} : PageSpan{pages.front().page, pages.back().page};
    const WrittenContent written = contentOf(document, source);
    protocol::Counts counts;
    counts.charactersWritten = static_cast<std::int64_t>(written.characters);
    counts.picturesWritten = static_cast<std::int64_t>(written.pictures);
    counts.linksWritten = static_cast<std::int64_t>(written.links);
    std::size_t notes = 0;
    for (const PageInventory& page : pages) {
        counts.charactersRead += static_cast<std::int64_t>(page.characters);
        counts.picturesRead += static_cast<std::int64_t>(page.pictures.size());
        counts.linksRead += static_cast<std::int64_t>(page.links);
        counts.valuesRead += static_cast<std::int64_t>(page.values.size());
        PageAudit audit(page, written, diagnostics);
        counts.valuesWritten += static_cast<std::int64_t>(audit.compareValues(scope));
        if (!scope.isWhole)
            continue;
        notes = audit.compareLetters(notes);
        audit.compareLinks();
        if (scope.hasPictures)
            audit.comparePictures();
    }
    return counts;
}

} // namespace orvane::worker
