#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "pdf/FontRequest.h"
#include "pdf/PageContent.h"
#include "pdf/PagePictures.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvane::pdf {

/// The passwords a user gave; empty for none.
struct Passwords {
    std::string user;
    std::string owner;
};

/// Title, author and so on as UTF-8; dates as ISO 8601 ("2024-05-01T10:00:00Z"); empty where the file has none.
struct Metadata {
    std::string title;
    std::string author;
    std::string subject;
    std::string keywords;
    std::string creator;
    std::string producer;
    std::string created;
    std::string modified;
    std::string language; ///< BCP 47, from the catalog
};

/// One entry of the outline ("bookmarks"), with its children.
struct OutlineEntry {
    std::string title;
    Destination destination;
    std::vector<OutlineEntry> children;
};

/// One element of the structure tree. Source: ISO 32000-1, 14.7.
struct StructureElement {
    std::string type; ///< standard type after the role map: "P", "H1", "Table", "L", ...
    std::string title;
    std::string alternateText;
    std::string actualText;
    std::string language;
    int rowSpan = 1;
    int columnSpan = 1;
    bool isHeaderCell = false;
    struct Content {
        int page = 0;
        int mcid = -1;
    };
    std::vector<Content> content;
    std::vector<StructureElement> children;
};

/// What a page's own dictionary says.
struct PageInfo {
    double width = 0; ///< points, as shown
    double height = 0;
    int rotation = 0;
    std::string label;
};

struct PageReadOptions {
    PictureStore* pictures =
        nullptr; ///< takes the page's pictures as they are read; null leaves them out. One for all pages.
    std::chrono::milliseconds timeBudget{
        30'000}; ///< no page that a person made takes this long; the rest of it is left out
};

/// Whether the words of a page are painted with it.
enum class PaintedText : std::uint8_t { Shown, LeftOut };

/// How fine parts of a page are painted, dots per inch.
struct PaintResolution {
    double usual = 0;
    double ofDense = usual; ///< down to this where lines or areas over each other are too many for smooth edges
};

/// An open PDF.
/// Errors: opening throws Failure(SourceUnreadable | NotAPdf | UserPasswordNeeded | OwnerPasswordNeeded).
/// Thread: one object a thread; several objects may read the same file at once.
class PdfDocument {
public:
    /// Opens `file`. With an encrypted file whose author forbids copying, the owner's password is needed.
    static PdfDocument open(const std::filesystem::path& file, const Passwords& passwords);

    PdfDocument(PdfDocument&&) noexcept;
    PdfDocument& operator=(PdfDocument&&) noexcept;
    ~PdfDocument();

    int pageCount() const;
    PageInfo pageInfo(int page) const;
    Metadata metadata() const;
    std::vector<OutlineEntry> outline() const;
    /// The structure tree's top elements; empty for a file without tags.
    std::vector<StructureElement> structureTree() const;
    bool isEncrypted() const;
    std::string pdfVersion() const; ///< "1.7"

    /// Reads one page. Damage is told to `diagnostics`; what can be read is returned.
    PageContent readPage(int page, const PageReadOptions& options, Diagnostics& diagnostics) const;

    /// The pictures that a page and its annotations paint. Damage is told to `diagnostics`.
    PagePictures paintedPictures(int page, Diagnostics& diagnostics) const;

    /// Paints parts of a page (page space, points) as PNGs with a white ground, all in one go through its content. Used
    /// for drawings too rich to take apart. Null where nothing of the page is in a region. Errors:
    /// Failure(InvalidRequest) when nothing of it is in any.
    std::vector<PictureDataPtr> renderRegions(int page, const std::vector<Rect>& regions, PaintResolution resolution,
                                              PaintedText words, Diagnostics& diagnostics) const;

    /// Paints one part of a page.
    PictureDataPtr renderRegion(int page, const Rect& region, PaintResolution resolution, PaintedText words,
                                Diagnostics& diagnostics) const;

    /// Paints what one annotation, by its Annotation::number, shows in a region, and nothing else: a PNG that is
    /// transparent where it paints nothing.
    PictureDataPtr renderAnnotation(int page, std::size_t annotation, const Rect& region, PaintResolution resolution,
                                    PaintedText words, Diagnostics& diagnostics) const;

    /// The squares of a page, `side` points wide, that are darker than its paper; of use for scans, whose ink says
    /// nothing by itself.
    std::vector<Rect> inkOf(int page, double side, Diagnostics& diagnostics) const;

    /// A TrueType file of the characters asked for, out of the font programs in the file. Unset where these may not
    /// travel with a document that people edit, see packFont().
    std::optional<std::string> packFont(const FontRequest& request) const;

private:
    struct Impl;
    explicit PdfDocument(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};

} // namespace orvane::pdf
