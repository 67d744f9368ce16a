#pragma once

#include "base/Geometry.h"
#include "base/PictureRows.h"
#include "pdf/CodedPicture.h"
#include "pdf/StateMask.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvane::pdf {

/// One painting of a picture.
struct PaintedPicture {
    std::string identity; ///< the same for all paintings of one object, and for equal inline pictures
    int objectNumber = 0; ///< 0 for inline pictures
    int width = 0;        ///< pixels
    int height = 0;
    Matrix matrix;      ///< from the unit square, origin at the picture's top left corner, to page space
    int components = 1; ///< of a pixel
    int bits = 1;       ///< of a component
    bool isStencil = false;
    bool hasTransparency = false; ///< a mask, a soft mask or a colour key belongs to it or lies over it
    bool isUnderMask = false;     ///< a soft mask of the graphics state lies over it
    PictureCoding coding = PictureCoding::Samples;
};

/// In which colours a picture is read.
enum class PictureColors : std::uint8_t {
    Screen,     ///< sRGB, 8 bits a channel
    DeepScreen, ///< sRGB, 16 bits where the source has them
    Own,        ///< as in the source where it can be told: 16 bits, the colour profile with the samples as they are
};

/// The pictures that a page paints, with those of its forms, patterns and annotations, in paint order. What is painted
/// again and again comes again and again. Type 3 glyphs are text, and what only makes up a soft mask is not painted.
/// Requires: the document outlives this, and this the rows that are read from it.
class PagePictures {
public:
    struct Impl;
    explicit PagePictures(std::unique_ptr<Impl> impl);
    PagePictures(PagePictures&&) noexcept;
    PagePictures& operator=(PagePictures&&) noexcept;
    ~PagePictures();

    const std::vector<PaintedPicture>& painted() const;

    /// Opens a picture for reading, its own transparency included. Nothing comes back, and `trouble` says why, when it
    /// is beyond limits or has no data.
    std::unique_ptr<PictureRows> open(std::size_t index, PictureColors colors, std::string& trouble) const;

    /// Opens the mask that is a picture's own, in the mask's size: white is opaque. Nothing comes back where it has
    /// none or that cannot be read.
    std::unique_ptr<PictureRows> openMask(std::size_t index) const;

    /// What the soft mask of the graphics state leaves of a picture that is under one. Nothing comes back when painting
    /// the masks takes too long.
    std::optional<StateMask> stateMask(std::size_t index) const;

    /// The picture's own data, for a stream that holds a file format's data; nothing for others and for inline
    /// pictures.
    std::optional<CodedPicture> coded(std::size_t index) const;

private:
    std::unique_ptr<Impl> m_impl;
};

} // namespace orvane::pdf
