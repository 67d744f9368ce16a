#include "pictures/GroupWriter.h"

#include "pictures/CodedFile.h"
#include "pictures/ConvertedRows.h"
#include "pictures/FadedRows.h"
#include "pictures/JoinedRows.h"
#include "pictures/PictureWriter.h"

#include <cmath>
#include <new>
#include <optional>

#include <fmt/format.h>

namespace orvane::pictures {
namespace {

Resolution resolutionOf(const PictureGroup& group) {
    constexpr double kPointsPerInch = 72;
    const double width = std::hypot(group.matrix.a, group.matrix.b);
    const double height = std::hypot(group.matrix.c, group.matrix.d);
    if (!(width > 0) || !(height > 0) || !std::isfinite(width) || !std::isfinite(height))
        return {};
    return {group.width / width * kPointsPerInch, group.height / height * kPointsPerInch};
}

/// Whether the format is the one in which a stream of this coding stands.
bool isOwnFormat(ImageFileFormat format, pdf::PictureCoding coding) {
    return format == ImageFileFormat::Original ||
           (format == ImageFileFormat::Jpg && coding == pdf::PictureCoding::Jpeg) ||
           (format == ImageFileFormat::Tiff && coding == pdf::PictureCoding::Fax);
}

} // namespace

GroupWriter::GroupWriter(const pdf::PagePictures& pictures, const PictureGroup& group, ImageFileFormat format,
                         PictureTarget& target)
    : m_pictures(pictures)
    , m_group(group)
    , m_format(format)
    , m_target(target)
    , m_resolution(resolutionOf(group)) {}

void GroupWriter::write(const std::string& name, int page, Diagnostics& diagnostics) {
    m_diagnostics = &diagnostics;
    m_page = page;
    try {
        if (!passThrough(name))
            codeAnew(name);
    } catch (const std::bad_alloc&) {
        tell(DiagnosticKind::PictureUnreadable, "a picture needs more memory than there is");
        m_target.discard();
    }
}

/// False when the stream's own bytes are not what is wanted.
bool GroupWriter::passThrough(const std::string& name) {
    if (!isOwnFormat(m_format, first().coding) || m_group.pieces.size() > 1)
        return false;
    const std::optional<pdf::CodedPicture> coded = m_pictures.coded(m_group.pieces.front().index);
    const std::string extension = coded ? extensionOf(*coded) : "";
    // Who asks for the original gets it with what stands around it in the PDF; other formats show what the page shows.
    if (extension.empty() || (m_format != ImageFileFormat::Original && !coded->isWhole))
        return false;
    OutputFile file(m_target.begin());
    writeCoded(*coded, m_group.height, m_resolution, file);
    file.close();
    commit(name, extension, m_group.width, m_group.height);
    if (first().hasTransparency)
        writeOpacity(name + "-mask");
    return true;
}

/// What a passed through file cannot hold stands in a picture of its own beside it.
void GroupWriter::writeOpacity(const std::string& name) {
    const std::size_t index = m_group.pieces.front().index;
    // A mask alone is read without the picture, which is passed through for speed too.
    if (!first().isUnderMask)
        if (auto mask = m_pictures.openMask(index)) {
            writeRows(std::move(mask), name);
            return;
        }
    auto rows = open(index, pdf::PictureColors::Screen);
    if (rows && hasAlpha(rows->format()))
        writeRows(opacityRows(std::move(rows)), name);
}

void GroupWriter::codeAnew(const std::string& name) {
    auto rows = openWhole();
    if (!rows)
        return;
    if (const std::string limit = findLimit(m_format, rows->format()); !limit.empty())
        tell(DiagnosticKind::FormatLimitReached, limit);
    else
        writeRows(std::move(rows), name);
}

std::unique_ptr<PictureRows> GroupWriter::open(std::size_t index, pdf::PictureColors colors) {
    std::string trouble;
    auto rows = m_pictures.open(index, colors, trouble);
    if (!rows)
        tell(DiagnosticKind::PictureUnreadable, trouble);
    if (!rows || !m_pictures.painted()[index].isUnderMask)
        return rows;
    if (auto mask = m_pictures.stateMask(index))
        return fadeRows(std::move(rows), std::move(*mask));
    tell(DiagnosticKind::PictureSimplified, "a picture comes without the soft mask that lies over it");
    return rows;
}

/// The pieces as one picture; one that cannot be read is left white.
std::unique_ptr<PictureRows> GroupWriter::openWhole() {
    std::vector<PlacedRows> pieces;
    for (const PictureGroup::Piece& piece : m_group.pieces)
        if (auto rows = open(piece.index, colorsFor(m_format))) {
            const int height = rows->format().height;
            pieces.push_back({std::move(rows), piece.x, piece.y, height});
        }
    if (pieces.empty())
        return nullptr;
    if (m_group.pieces.size() == 1)
        return std::move(pieces.front().rows);
    return joinRows(std::move(pieces), m_group.width, m_group.height);
}

void GroupWriter::writeRows(std::unique_ptr<PictureRows> rows, const std::string& name) {
    const int width = rows->format().width;
    const int height = rows->format().height;
    OutputFile file(m_target.begin());
    const DataEnd end = writePicture(std::move(rows), m_format, m_resolution, file);
    file.close();
    commit(name, extensionOf(m_format), width, height);
    if (end == DataEnd::CutShort)
        tell(DiagnosticKind::PictureUnreadable, "a picture's data breaks off");
}

void GroupWriter::commit(const std::string& name, const std::string& extension, int width, int height) {
    // Files of before are told by the names of the run; one that came since then stays all the same.
    PictureFile file{name + "." + extension, width, height, {m_page}, {}};
    for (int other = 2; !m_target.commit(file.name); ++other)
        file.name = fmt::format("{}-{}.{}", name, other, extension);
    for (const PictureGroup::Piece& piece : m_group.pieces)
        file.parts.push_back({m_pictures.painted()[piece.index].objectNumber, piece.x, piece.y});
    m_files.push_back(std::move(file));
}

void GroupWriter::tell(DiagnosticKind kind, const std::string& trouble) {
    const int object = first().objectNumber;
    const std::string what = object > 0 ? fmt::format("object {}", object) : "an inline picture";
    m_diagnostics->add(kind, m_page, fmt::format("{} ({})", trouble, what), m_group.matrix.applyToBox({0, 0, 1, 1}));
}

} // namespace orvane::pictures
