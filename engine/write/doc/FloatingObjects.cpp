#include "write/doc/FloatingObjects.h"

#include "write/doc/ArtRecords.h"
#include "write/doc/ShapeDoc.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <utility>

namespace orvane::write::doc {
namespace {

using namespace document;

/// Numbers of shapes come in blocks. Source: [MS-ODRAW] 2.2.46 (OfficeArtIDCL).
constexpr int kBlock = 1024;
constexpr int kDrawing = 1;
constexpr double kEmuATwip = 635;

struct Extent {
    double width;
    double height;
    double rotation;
};

Extent extentOf(const FloatingObject& object) {
    const auto extent = [](Emu width, Emu height, double rotation) {
        return Extent{static_cast<double>(width.value), static_cast<double>(height.value), rotation};
    };
    if (object.frame)
        return extent(object.frame->width, object.frame->height, object.frame->rotation);
    if (const auto* picture = std::get_if<Picture>(&object.figure->content))
        return extent(picture->width, picture->height, picture->rotation);
    const auto& drawing = std::get<Drawing>(object.figure->content);
    return extent(drawing.width, drawing.height, 0);
}

std::int64_t twips(double emu) {
    constexpr double kMost = 1e6;
    return std::llround(std::clamp(emu / kEmuATwip, -kMost, kMost));
}

/// Source: [MS-DOC] 2.9.253 (Spa: bx, by, wr, fBelowText).
int flagsOf(const Placement& placement) {
    constexpr int kHorizontalPlace = 1;
    constexpr int kVerticalPlace = 3;
    constexpr int kWrapPlace = 5;
    constexpr int kBelowText = 1 << 14;
    const int horizontal = placement.horizontalAnchor == HorizontalAnchor::Margin ? 0
                           : placement.horizontalAnchor == HorizontalAnchor::Page ? 1
                                                                                  : 2;
    const int vertical = placement.verticalAnchor == VerticalAnchor::Margin ? 0
                         : placement.verticalAnchor == VerticalAnchor::Page ? 1
                                                                            : 2;
    const int wrap = placement.wrapping == Wrapping::TopAndBottom ? 1 : placement.wrapping == Wrapping::Square ? 2 : 3;
    return horizontal << kHorizontalPlace | vertical << kVerticalPlace | wrap << kWrapPlace |
           (placement.wrapping == Wrapping::BehindText ? kBelowText : 0);
}

/// A box that is turned onto its side is stored as the box it then covers. Source: [MS-ODRAW] 2.3.18.5 (rotation).
std::string anchorRecord(const FloatingObject& object) {
    auto [width, height, rotation] = extentOf(object);
    auto x = static_cast<double>(object.placement().x.value);
    auto y = static_cast<double>(object.placement().y.value);
    const double turn = std::fmod(std::fmod(rotation, 360) + 360, 360);
    if ((turn >= 45 && turn < 135) || (turn >= 225 && turn < 315)) {
        x += (width - height) / 2;
        y += (height - width) / 2;
        std::swap(width, height);
    }
    Bytes bytes;
    bytes.u32(object.shape).u32(twips(x)).u32(twips(y)).u32(twips(x + width)).u32(twips(y + height));
    return bytes.u16(flagsOf(object.placement())).u32(0).str();
}

/// The pictures of floating objects, each once.
class Store {
public:
    Store(const PictureStore& pictures, std::uint32_t tailStart, CompoundStream& tail)
        : m_pictures(pictures)
        , m_tailStart(tailStart)
        , m_tail(tail) {}

    /// The picture's place among the entries, counted from 1.
    int indexOf(PictureId id) {
        const auto [found, isNew] = m_indexes.try_emplace(id, static_cast<int>(m_indexes.size()) + 1);
        if (isNew)
            add(id);
        return found->second;
    }

    std::string record() const {
        if (m_entries.empty())
            return {};
        return art::container(art::type::kStore, m_entries, static_cast<int>(m_indexes.size()));
    }

private:
    void add(PictureId id) {
        const PictureStore::Entry entry = m_pictures.at(id);
        const std::uint64_t size = std::filesystem::file_size(entry.file);
        m_entries += art::storeEntry(id, entry.format, size, m_tailStart + static_cast<std::uint32_t>(m_tail.size()));
        m_tail.add(art::pictureHead(id, entry.format, size));
        m_tail.addFile(entry.file);
    }

    const PictureStore& m_pictures;
    std::uint32_t m_tailStart;
    CompoundStream& m_tail;
    std::map<PictureId, int> m_indexes;
    std::string m_entries;
};

/// The shapes that each drawing has: the one that holds all others, and its background.
std::string rootShape(int id) {
    return art::container(art::type::kShape, art::record(1, 0, art::type::kGroupBox, Bytes().zeros(16).str()) +
                                                 art::shapeHead(art::kFreeForm, id, art::kIsGroup | art::kIsRoot));
}

std::string backgroundShape(int id) {
    return art::container(art::type::kShape, art::shapeHead(art::kRectangle, id, art::kIsBackground | art::kHasType));
}

/// Which numbers are taken. Source: [MS-ODRAW] 2.2.47, 2.2.48 (OfficeArtFDGGBlock).
std::string numbersRecord(int next) {
    const int blocks = next / kBlock;
    const int shapes = next - kBlock;
    Bytes bytes;
    bytes.u32(next).u32(blocks + 1).u32(shapes).u32(1);
    for (int block = 1; block <= blocks; ++block)
        bytes.u32(kDrawing).u32(block < blocks ? kBlock : next - blocks * kBlock);
    return art::record(0, 0, art::type::kNumbers, bytes.str());
}

/// Indexes of the objects from the lowest to the one nearest to the reader.
std::vector<std::size_t> paintOrder(const std::vector<FloatingObject>& objects) {
    std::vector<std::size_t> order(objects.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return objects[a].placement().zOrder < objects[b].placement().zOrder;
    });
    return order;
}

std::string recordsOf(const FloatingObject& object, Store& store, ShapeNumbers& numbers) {
    if (object.frame)
        return frameRecords(*object.frame, object.shape, object.box);
    if (const auto* picture = std::get_if<Picture>(&object.figure->content))
        return pictureRecords(*picture, object.placement(), object.shape, store.indexOf(picture->id));
    return drawingRecords(std::get<Drawing>(object.figure->content), object.placement(), object.shape, numbers);
}

} // namespace

FloatingParts makeFloatingParts(std::vector<FloatingObject>& objects, const PictureStore& pictures,
                                std::uint32_t bodyLength, std::uint32_t tailStart, CompoundStream& tail) {
    if (objects.empty())
        return {};
    ShapeNumbers numbers(kBlock);
    const int root = numbers.take();
    const int background = numbers.take();
    Store store(pictures, tailStart, tail);
    std::string shapes = rootShape(root);
    for (const std::size_t index : paintOrder(objects)) {
        objects[index].shape = numbers.take();
        shapes += recordsOf(objects[index], store, numbers);
    }
    Bytes places;
    Bytes anchors;
    for (const FloatingObject& object : objects) {
        places.u32(object.place);
        anchors.raw(anchorRecord(object));
    }
    places.u32(bodyLength);
    const std::string drawing = art::record(0, kDrawing, art::type::kDrawingNumbers,
                                            Bytes().u32(numbers.next() - kBlock).u32(numbers.next() - 1).str()) +
                                art::container(art::type::kGroup, shapes) + backgroundShape(background);
    constexpr char kBodyDrawing = 0;
    return {places.str() + anchors.str(),
            art::container(art::type::kGroupOfDrawings, numbersRecord(numbers.next()) + store.record()) + kBodyDrawing +
                art::container(art::type::kDrawing, drawing)};
}

} // namespace orvane::write::doc
