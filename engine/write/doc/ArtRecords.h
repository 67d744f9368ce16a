#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"
#include "write/doc/Bytes.h"

namespace orvane::write::doc::art {

/// The types of records. Source: [MS-ODRAW] 2.2.
namespace type {
inline constexpr int kGroupOfDrawings = 0xF000;
inline constexpr int kStore = 0xF001;
inline constexpr int kDrawing = 0xF002;
inline constexpr int kGroup = 0xF003;
inline constexpr int kShape = 0xF004;
inline constexpr int kNumbers = 0xF006;
inline constexpr int kStoreEntry = 0xF007;
inline constexpr int kDrawingNumbers = 0xF008;
inline constexpr int kGroupBox = 0xF009;
inline constexpr int kShapeHead = 0xF00A;
inline constexpr int kOptions = 0xF00B;
inline constexpr int kChildAnchor = 0xF00F;
inline constexpr int kClientTextBox = 0xF00D;
inline constexpr int kAnchor = 0xF010;
inline constexpr int kClientData = 0xF011;
inline constexpr int kJpeg = 0xF01D;
inline constexpr int kPng = 0xF01E;
inline constexpr int kMoreOptions = 0xF122;
} // namespace type

/// What shapes are. Source: [MS-ODRAW] 2.4.24 (MSOSPT).
inline constexpr int kFreeForm = 0;
inline constexpr int kRectangle = 1;
inline constexpr int kLine = 20;
inline constexpr int kPictureFrame = 75;
inline constexpr int kTextBox = 202;

/// Flags of a shape. Source: [MS-ODRAW] 2.2.40 (OfficeArtFSP).
inline constexpr int kIsGroup = 0x001;
inline constexpr int kIsChild = 0x002;
inline constexpr int kIsRoot = 0x004;
inline constexpr int kIsFlippedHorizontally = 0x040;
inline constexpr int kIsFlippedVertically = 0x080;
inline constexpr int kHasAnchor = 0x200;
inline constexpr int kIsBackground = 0x400;
inline constexpr int kHasType = 0x800;

/// A record with its head. `more` bytes that are not in `content` belong to it too.
/// Source: [MS-ODRAW] 2.2.1 (OfficeArtRecordHeader).
std::string record(int version, int instance, int type, const std::string& content, std::uint64_t more = 0);
/// A record of records.
std::string container(int type, const std::string& content, int instance = 0);

/// Properties of a shape, ascending by number.
class Options {
public:
    void add(int number, std::int64_t value);
    void addText(int number, const std::string& text);
    /// A list of `count` items.
    void addList(int number, std::size_t count, int itemSize, const std::string& items);
    std::string asRecord(int type = type::kOptions) const;

private:
    Bytes m_list;
    Bytes m_data;
    int m_count = 0;
};

/// The head of a shape. Source: [MS-ODRAW] 2.2.40.
std::string shapeHead(int shape, int id, int flags);

/// The flags of a picture's mirroring.
int flipFlags(const document::Picture& picture);
/// Adds how a picture is turned and cut. Source: [MS-ODRAW] 2.3.18.5 (rotation), 2.3.23 (crop).
void addPictureLook(Options& options, const document::Picture& picture);
/// Degrees clockwise with 16 binary places, from 0 to below a full turn.
std::int64_t angle(double degrees);

/// The record that a picture's own bytes, `size` of them, are the end of. `number` is that of PictureNumbers.
std::string pictureHead(int number, PictureFormat format, std::uint64_t size);
/// The entry of a picture whose record stands at `place` of the main stream. Source: [MS-ODRAW] 2.2.32 (OfficeArtFBSE).
std::string storeEntry(int number, PictureFormat format, std::uint64_t size, std::uint32_t place);
/// Likewise of one whose bytes follow it: the entry ends with the head of the picture's record.
std::string storeEntryBefore(int number, PictureFormat format, std::uint64_t size);

} // namespace orvane::write::doc::art
