#include "pdf/PagePictures.h"

#include "pdf/CodedReader.h"
#include "pdf/ColorProfile.h"
#include "pdf/PagePicturesImpl.h"
#include "pdf/PopplerRuntime.h"
#include "pdf/SourceRows.h"
#include "pdf/StateMaskPainter.h"

#include <algorithm>
#include <chrono>

#include <Object.h>
#include <PDFDoc.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

using MaskKind = CollectedPicture::MaskKind;

/// For the masks of the graphics state over all pictures of a page.
constexpr std::chrono::milliseconds kMaskTime{30'000};

/// The streams of one picture, as long as it is read.
class OpenStreams {
public:
    OpenStreams(const CollectedPicture& picture, ::PDFDoc& document) {
        if (picture.reference == Ref::INVALID()) {
            m_picture = ::Object(static_cast<::Stream*>(
                new MemStream(picture.inlineSamples.data(), 0, static_cast<Goffset>(picture.inlineSamples.size()),
                              ::Object(new ::Dict(document.getXRef())))));
            return;
        }
        m_picture = document.getXRef()->fetch(picture.reference);
        if (!m_picture.isStream() || picture.maskKind == MaskKind::None)
            return;
        m_mask = m_picture.streamGetDict()->lookup(picture.maskKind == MaskKind::Soft ? "SMask" : "Mask");
        if (!m_mask.isStream())
            m_mask = m_picture.streamGetDict()->lookup("Mask");
    }

    ::Stream* picture() const { return m_picture.isStream() ? m_picture.getStream() : nullptr; }
    ::Stream* mask() const { return m_mask.isStream() ? m_mask.getStream() : nullptr; }

private:
    ::Object m_picture;
    ::Object m_mask;
};

PictureSource sourceOf(const PaintedPicture& painted, const CollectedPicture& picture, const OpenStreams& streams) {
    PictureSource source;
    source.stream = streams.picture();
    source.width = painted.width;
    source.height = painted.height;
    source.colors = picture.colors.get();
    source.isInverted = picture.isInverted;
    source.stencilColor = picture.stencilColor;
    source.colorKey = picture.colorKey.empty() ? nullptr : picture.colorKey.data();
    source.opacityChannel = picture.opacityChannel;
    if (streams.mask())
        source.mask = PictureMask{streams.mask(), picture.maskWidth, picture.maskHeight, picture.maskColors.get(),
                                  picture.isMaskInverted};
    return source;
}

/// Rows together with what they are read from.
struct OpenPicture {
    OpenStreams streams;
    PictureSource source;
    std::unique_ptr<PictureRows> rows;
};

class OwningRows : public PictureRows {
public:
    explicit OwningRows(std::unique_ptr<OpenPicture> picture)
        : PictureRows(picture->rows->format())
        , m_picture(std::move(picture)) {}

    void read(std::uint8_t* row) override {
        const ComplaintCollector silence;
        m_picture->rows->read(row);
    }
    bool isCutShort() const override { return m_picture->rows->isCutShort(); }

private:
    std::unique_ptr<OpenPicture> m_picture;
};

} // namespace

PagePictures::PagePictures(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl)) {}
PagePictures::PagePictures(PagePictures&&) noexcept = default;
PagePictures& PagePictures::operator=(PagePictures&&) noexcept = default;
PagePictures::~PagePictures() = default;

const std::vector<PaintedPicture>& PagePictures::painted() const {
    return m_impl->painted;
}

std::unique_ptr<PictureRows> PagePictures::open(std::size_t index, PictureColors colors, std::string& trouble) const {
    const ComplaintCollector silence;
    const CollectedPicture& collected = m_impl->collected[index];
    auto picture = std::make_unique<OpenPicture>(OpenPicture{OpenStreams(collected, m_impl->document), {}, nullptr});
    picture->source = sourceOf(m_impl->painted[index], collected, picture->streams);
    if (!picture->source.stream) {
        trouble = "a picture's data cannot be read";
        return nullptr;
    }
    if (colors == PictureColors::Own && collected.colors)
        picture->source.colorProfile = colorProfileOf(*picture->source.stream->getDict(), *collected.colors);
    picture->rows =
        openRows(picture->source, colors == PictureColors::Screen ? SampleDepth::Byte : SampleDepth::Full, trouble);
    if (!picture->rows)
        return nullptr;
    return std::make_unique<OwningRows>(std::move(picture));
}

std::unique_ptr<PictureRows> PagePictures::openMask(std::size_t index) const {
    const ComplaintCollector silence;
    const CollectedPicture& collected = m_impl->collected[index];
    auto picture = std::make_unique<OpenPicture>(OpenPicture{OpenStreams(collected, m_impl->document), {}, nullptr});
    picture->source = sourceOf(m_impl->painted[index], collected, picture->streams);
    if (picture->source.mask)
        picture->rows = openMaskRows(*picture->source.mask);
    if (!picture->rows)
        return nullptr;
    return std::make_unique<OwningRows>(std::move(picture));
}

std::optional<StateMask> PagePictures::stateMask(std::size_t index) const {
    const ComplaintCollector silence;
    const auto start = threadTime();
    TimeBudget budget(std::max(kMaskTime - m_impl->maskTime, std::chrono::milliseconds(0)));
    const CollectedPicture& collected = m_impl->collected[index];
    std::optional<StateMask> mask;
    if (!budget.isSpent())
        mask = paintStateMask({m_impl->painted[index], collected.painting, collected.hasOwnSoftMask()}, *m_impl->page,
                              m_impl->document, m_impl->repair, budget);
    m_impl->maskTime += std::chrono::duration_cast<std::chrono::milliseconds>(threadTime() - start);
    return mask;
}

std::optional<CodedPicture> PagePictures::coded(std::size_t index) const {
    const ComplaintCollector silence;
    if (m_impl->painted[index].coding == PictureCoding::Samples)
        return std::nullopt;
    const CollectedPicture& collected = m_impl->collected[index];
    const OpenStreams streams(collected, m_impl->document);
    if (!streams.picture())
        return std::nullopt;
    auto coded = readCoded(sourceOf(m_impl->painted[index], collected, streams));
    if (coded && m_impl->painted[index].isUnderMask)
        coded->isWhole = false;
    return coded;
}

} // namespace orvane::pdf
