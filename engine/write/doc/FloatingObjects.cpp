#include "write/doc/FloatingObjects.h"

#include "write/StoredBox.h"
#include "write/doc/ArtRecords.h"
#include "write/doc/ShapeDoc.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace orvane::write::doc {
namespace {

using namespace document;

/// Numbers of shapes come in blocks, each for one drawing. Source: [MS-ODRAW] 2.2.46 (OfficeArtIDCL).
constexpr int kBlock = 1024;

StoredBox boxOf(const FloatingObject& object) {
    const Placement& placement = object.placement();
    if (object.frame)
        return storedBox(placement, object.frame->width, object.frame->height, object.frame->rotation);
    if (const auto* picture = std::get_if<Picture>(&object.figure->content))
        return storedBox(placement, picture->width, picture->height, picture->rotation);
    const auto& drawing = std::get<Drawing>(object.figure->content);
    return storedBox(placement, drawing.width, drawing.height, 0);
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

std::string anchorRecord(const FloatingObject& object) {
    const StoredBox box = boxOf(object);
    Bytes bytes;
    bytes.u32(object.shape).u32(storedTwips(box.left)).u32(storedTwips(box.top));
    bytes.u32(storedTwips(box.right)).u32(storedTwips(box.bottom));
    return bytes.u16(flagsOf(object.placement())).u32(0).str();
}

/// The pictures of floating objects, each once.
class Store {
public:
    Store(const PictureStore& pictures, PictureNumbers& numbers, std::uint32_t tailStart, CompoundStream& tail)
        : m_pictures(pictures)
        , m_numbers(numbers)
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
        const int number = m_numbers.of(id);
        m_entries +=
            art::storeEntry(number, entry.format, size, m_tailStart + static_cast<std::uint32_t>(m_tail.size()));
        m_tail.add(art::pictureHead(number, entry.format, size));
        m_tail.addFile(entry.file);
    }

    const PictureStore& m_pictures;
    PictureNumbers& m_numbers;
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

/// Indexes of the objects from the lowest to the one nearest to the reader.
std::vector<std::size_t> paintOrder(const std::vector<FloatingObject>& objects) {
    std::vector<std::size_t> order(objects.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return objects[a].placement().zOrder < objects[b].placement().zOrder;
    });
    return order;
}

/// The records of an object. `indexOf` tells where a picture stands among those of the file.
template<typename IndexOf>
std::string recordsOf(const FloatingObject& object, ShapeNumbers& numbers, const IndexOf& indexOf) {
    if (object.frame)
        return frameRecords(*object.frame, object.shape, object.box);
    if (const auto* picture = std::get_if<Picture>(&object.figure->content))
        return pictureRecords(*picture, object.placement(), object.shape, indexOf(picture->id));
    return drawingRecords(std::get<Drawing>(object.figure->content), object.placement(), object.shape, numbers);
}

/// All that two objects differ in, but for their numbers in the file.
std::string likeness(const FloatingObject& object) {
    FloatingObject plain = object;
    plain.shape = 0;
    ShapeNumbers numbers(1);
    return anchorRecord(plain) + recordsOf(plain, numbers, [](PictureId id) { return static_cast<int>(id.value); });
}

/// The page behind all shapes, which only the body has.
enum class Background { Drawn, None };

/// The shapes of one layer. Their numbers start with a block of their own.
/// Source: [MS-ODRAW] 2.2.13 (OfficeArtDgContainer), 2.2.49 (OfficeArtFDG).
class LayerDrawing {
public:
    LayerDrawing(int number, int firstBlock)
        : m_number(number)
        , m_first(firstBlock * kBlock)
        , m_numbers(m_first) {}

    /// Gives the objects their numbers.
    void draw(std::vector<FloatingObject>& objects, Store& store, Background background) {
        m_shapes = rootShape(m_numbers.take());
        if (background == Background::Drawn)
            m_behind = backgroundShape(m_numbers.take());
        for (const std::size_t index : paintOrder(objects)) {
            objects[index].shape = m_numbers.take();
            m_shapes += recordsOf(objects[index], m_numbers, [&store](PictureId id) { return store.indexOf(id); });
        }
    }

    std::string record() const {
        const Bytes counts = Bytes().u32(shapeCount()).u32(m_numbers.next() - 1);
        return art::container(art::type::kDrawing, art::record(0, m_number, art::type::kDrawingNumbers, counts.str()) +
                                                       art::container(art::type::kGroup, m_shapes) + m_behind);
    }

    int shapeCount() const { return m_numbers.next() - m_first; }
    int next() const { return m_numbers.next(); }
    int blockCount() const { return shapeCount() / kBlock + 1; }

    /// How many numbers of each block are taken. Source: [MS-ODRAW] 2.2.46 (OfficeArtIDCL).
    void addBlocks(Bytes& bytes) const {
        for (int block = 1; block <= blockCount(); ++block)
            bytes.u32(m_number).u32(block < blockCount() ? kBlock : shapeCount() - (block - 1) * kBlock);
    }

private:
    int m_number;
    int m_first;
    ShapeNumbers m_numbers;
    std::string m_shapes;
    std::string m_behind;
};

/// Which numbers are taken. Source: [MS-ODRAW] 2.2.47, 2.2.48 (OfficeArtFDGGBlock).
std::string numbersRecord(const std::vector<LayerDrawing>& drawings) {
    int blocks = 0;
    int shapes = 0;
    Bytes taken;
    for (const LayerDrawing& drawing : drawings) {
        blocks += drawing.blockCount();
        shapes += drawing.shapeCount();
        drawing.addBlocks(taken);
    }
    Bytes bytes;
    bytes.u32(drawings.back().next()).u32(blocks + 1).u32(shapes).u32(static_cast<std::int64_t>(drawings.size()));
    return art::record(0, 0, art::type::kNumbers, bytes.raw(taken.str()).str());
}

std::string anchorsOf(const LayeredText& text) {
    if (text.layer.objects.empty())
        return {};
    Bytes places;
    Bytes anchors;
    for (const FloatingObject& object : text.layer.objects) {
        places.u32(object.place);
        anchors.raw(anchorRecord(object));
    }
    return places.u32(text.length).raw(anchors.str()).str();
}

} // namespace

void FloatLayer::append(const FloatLayer& other, std::uint32_t start) {
    const auto boxCount = static_cast<int>(boxes.starts.size());
    for (FloatingObject object : other.objects) {
        object.place += start;
        if (object.frame)
            object.box += boxCount;
        objects.push_back(object);
    }
    for (const std::uint32_t place : other.boxes.starts)
        boxes.starts.push_back(boxes.text.length() + place);
    boxes.text.append(other.boxes.text);
}

bool equal(const FloatLayer& a, const FloatLayer& b) {
    const auto isSame = [](const FloatingObject& x, const FloatingObject& y) {
        return x.place == y.place && likeness(x) == likeness(y);
    };
    return a.boxes.starts == b.boxes.starts && a.boxes.text == b.boxes.text &&
           std::equal(a.objects.begin(), a.objects.end(), b.objects.begin(), b.objects.end(), isSame);
}

FloatingParts makeFloatingParts(const LayeredText& body, const LayeredText& running, const PictureStore& pictures,
                                PictureNumbers& numbers, std::uint32_t tailStart, CompoundStream& tail) {
    if (body.layer.objects.empty() && running.layer.objects.empty())
        return {};
    constexpr char kOfBody = 0;
    constexpr char kOfRunningTexts = 1;
    Store store(pictures, numbers, tailStart, tail);
    // Readers take the first drawing for the body's, even if nothing floats there.
    std::vector<LayerDrawing> drawings{LayerDrawing(1, 1)};
    drawings.front().draw(body.layer.objects, store, Background::Drawn);
    std::string records = kOfBody + drawings.front().record();
    if (!running.layer.objects.empty()) {
        drawings.emplace_back(2, 1 + drawings.front().blockCount());
        drawings.back().draw(running.layer.objects, store, Background::None);
        records += kOfRunningTexts + drawings.back().record();
    }
    return {anchorsOf(body), anchorsOf(running),
            art::container(art::type::kGroupOfDrawings, numbersRecord(drawings) + store.record()) + records};
}

} // namespace orvane::write::doc
