#pragma once

#include "base/Diagnostic.h"
#include "base/ImageFileFormat.h"
#include "pdf/PagePictures.h"
#include "pictures/OutputFile.h"
#include "pictures/PictureFile.h"
#include "pictures/PictureJoiner.h"
#include "pictures/PictureTarget.h"
#include "pictures/Resolution.h"

#include <memory>
#include <string>
#include <vector>

namespace orvane::pictures {

/// Writes one picture, or what its pieces make up, to its file.
class GroupWriter {
public:
    /// Requires: all outlive the writer.
    GroupWriter(const pdf::PagePictures& pictures, const PictureGroup& group, ImageFileFormat format,
                PictureTarget& target);

    /// Writes the file `name` with the ending of its format: the stream's own bytes where the format asks for them,
    /// otherwise the picture coded anew. What cannot be read or held is told to `diagnostics`, of `page`.
    /// Errors: Failure(TargetUnwritable).
    void write(const std::string& name, int page, Diagnostics& diagnostics);

    /// What was written: nothing, one file, or two where the picture's opacity stands in a file of its own.
    const std::vector<PictureFile>& files() const { return m_files; }

private:
    bool passThrough(const std::string& name);
    void writeOpacity(const std::string& name);
    void codeAnew(const std::string& name);
    std::unique_ptr<PictureRows> open(std::size_t index, pdf::PictureColors colors);
    std::unique_ptr<PictureRows> openWhole();
    void writeRows(std::unique_ptr<PictureRows> rows, const std::string& name);
    void commit(const std::string& name, const std::string& extension, int width, int height);
    void tell(DiagnosticKind kind, const std::string& trouble);

    const pdf::PaintedPicture& first() const { return m_pictures.painted()[m_group.pieces.front().index]; }

    const pdf::PagePictures& m_pictures;
    const PictureGroup& m_group;
    ImageFileFormat m_format;
    PictureTarget& m_target;
    Resolution m_resolution;
    std::vector<PictureFile> m_files;
    Diagnostics* m_diagnostics = nullptr; ///< during write()
    int m_page = 0;
};

} // namespace orvane::pictures
