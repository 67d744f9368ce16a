#include "pictures/PictureExtractor.h"

#include "base/Failure.h"
#include "pictures/GroupWriter.h"
#include "pictures/PictureJoiner.h"

#include <map>
#include <string>

namespace orvane::pictures {
namespace {

/// More files than this no folder holds well; a document with more pictures means something else by them.
constexpr std::size_t kMaxFiles = 50'000;

std::string identityOf(const PictureGroup& group, const std::vector<pdf::PaintedPicture>& painted) {
    std::string identity;
    for (const PictureGroup::Piece& piece : group.pieces)
        identity += painted[piece.index].identity + "; ";
    return identity;
}

/// One run over the pages of a document.
class Extractor {
public:
    Extractor(const pdf::PdfDocument& document, ImageFileFormat format, const PictureNames& names,
              PictureTarget& target, JobObserver& observer)
        : m_document(document)
        , m_format(format)
        , m_names(names)
        , m_target(target)
        , m_observer(observer) {}

    void takePage(int page, Diagnostics& diagnostics) {
        const pdf::PagePictures pictures = m_document.paintedPictures(page, diagnostics);
        const std::vector<PictureGroup> groups = joinPieces(pictures.painted());
        const std::vector<NewPicture> newPictures = takeNew(groups, pictures, page);
        int number = 0;
        for (const auto& [group, files] : newPictures) {
            requireNotCancelled();
            if (m_files.size() >= kMaxFiles) {
                diagnostics.add(DiagnosticKind::FormatLimitReached, page, "there are more pictures than are taken out");
                return;
            }
            GroupWriter writer(pictures, *group, m_format, m_target);
            writer.write(m_names.name(page, ++number, static_cast<int>(newPictures.size())), page, diagnostics);
            for (const PictureFile& file : writer.files()) {
                files->push_back(m_files.size());
                m_files.push_back(file);
            }
            m_observer.stageReached(JobStage::Picture, static_cast<int>(m_files.size()), 0);
        }
    }

    Extracted result() { return {std::move(m_files), static_cast<int>(m_known.size())}; }

    void requireNotCancelled() const {
        if (m_observer.isCancelled())
            throw Failure(FailureCode::Cancelled, "the conversion was cancelled");
    }

private:
    using FileIndices = std::vector<std::size_t>; ///< the files of one picture

    struct NewPicture {
        const PictureGroup* group;
        FileIndices* files;
    };

    /// Those that no page before has; of the others the page is noted.
    std::vector<NewPicture> takeNew(const std::vector<PictureGroup>& groups, const pdf::PagePictures& pictures,
                                    int page) {
        std::vector<NewPicture> found;
        for (const PictureGroup& group : groups) {
            const auto [known, isNew] = m_known.try_emplace(identityOf(group, pictures.painted()));
            if (isNew)
                found.push_back({&group, &known->second});
            for (const std::size_t file : known->second)
                if (m_files[file].pages.back() != page)
                    m_files[file].pages.push_back(page);
        }
        return found;
    }

    const pdf::PdfDocument& m_document;
    ImageFileFormat m_format;
    const PictureNames& m_names;
    PictureTarget& m_target;
    JobObserver& m_observer;
    std::vector<PictureFile> m_files;
    std::map<std::string, FileIndices> m_known; ///< by identity; those that could not be read have no file
};

} // namespace

Extracted extractPictures(const pdf::PdfDocument& document, const Extraction& extraction, const PictureNames& names,
                          PictureTarget& target, JobObserver& observer, const DiagnosticsAction& onDiagnostics) {
    Extractor extractor(document, extraction.format, names, target, observer);
    int done = 0;
    for (const int page : extraction.pages) {
        extractor.requireNotCancelled();
        Diagnostics diagnostics;
        extractor.takePage(page, diagnostics);
        onDiagnostics(diagnostics);
        observer.stageReached(JobStage::PageOfPages, ++done, static_cast<int>(extraction.pages.size()));
    }
    return extractor.result();
}

} // namespace orvane::pictures
