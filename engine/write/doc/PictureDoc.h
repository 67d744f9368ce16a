#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"
#include "write/doc/CompoundFile.h"
#include "write/doc/PictureNumbers.h"

#include <map>
#include <tuple>

namespace orvane::write::doc {

/// The pictures of a file, in its data stream. Pictures that are shown in the same way stand there once.
/// Source: [MS-DOC] 2.9.192 (PICFAndOfficeArtData); [MS-ODRAW] 2.2.14 (shapes), 2.2.32 (pictures).
class PictureData {
public:
    PictureData(const PictureStore& pictures, PictureNumbers& numbers, CompoundStream& data)
        : m_pictures(pictures)
        , m_numbers(numbers)
        , m_data(data) {}

    bool has(const document::Picture& picture) const {
        return picture.id.value != 0 && picture.id.value <= m_pictures.size();
    }
    /// Where the picture stands in the data stream.
    /// Requires: has().
    std::uint32_t placeOf(const document::Picture& picture);
    /// Adds what is no picture but stands between them, and tells where.
    std::uint32_t addBytes(const std::string& bytes);

private:
    std::uint32_t add(const document::Picture& picture);

    const PictureStore& m_pictures;
    PictureNumbers& m_numbers;
    CompoundStream& m_data;
    std::map<std::string, std::uint32_t> m_places; ///< by all that tells pictures apart
    int m_nextShape = 1025;                        ///< numbers below are the format's own
};

} // namespace orvane::write::doc
