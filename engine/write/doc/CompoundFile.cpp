#include "write/doc/CompoundFile.h"

#include "base/Failure.h"
#include "write/doc/Bytes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>
#include <numeric>
#include <system_error>

#include <fmt/format.h>

namespace orvane::write::doc {
namespace {

// Source: [MS-CFB] 2.1, 2.2, 2.6.
constexpr std::uint32_t kFatSector = 0xFFFFFFFD;
constexpr std::uint32_t kDifatSector = 0xFFFFFFFC;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint64_t kSectorSize = 512;
constexpr std::uint32_t kNumbersASector = 128;
constexpr std::uint32_t kFatSectorsInHeader = 109;
constexpr std::uint32_t kFatSectorsInDifat = 127;
constexpr std::uint64_t kSmallestStream = 4096;
constexpr std::uint32_t kEntriesASector = 4;
constexpr std::size_t kNameSize = 64;
constexpr std::uint32_t kNoEntry = 0xFFFFFFFF;
/// The class of documents: {00020906-0000-0000-C000-000000000046}. Source: [MS-DOC] 2.1.
constexpr std::array<unsigned char, 16> kDocumentClass{0x06, 0x09, 0x02, 0x00, 0, 0, 0, 0,
                                                       0xC0, 0,    0,    0,    0, 0, 0, 0x46};

enum class EntryKind { Stream = 2, Root = 5 };

std::uint32_t sectorsFor(std::uint64_t size) {
    return static_cast<std::uint32_t>((size + kSectorSize - 1) / kSectorSize);
}

std::uint64_t storedSize(const CompoundStream& stream) {
    return std::max(stream.size(), kSmallestStream);
}

/// Where everything stands, by sector.
struct Plan {
    std::vector<std::uint32_t> starts; ///< of the streams
    std::uint32_t directory = 0;
    std::uint32_t directorySectors = 0;
    std::uint32_t fat = 0;
    std::uint32_t fatSectors = 0;
    std::uint32_t difat = 0;
    std::uint32_t difatSectors = 0;
};

Plan makePlan(const std::vector<CompoundStream>& streams) {
    Plan plan;
    std::uint32_t next = 0;
    for (const CompoundStream& stream : streams) {
        plan.starts.push_back(next);
        next += sectorsFor(storedSize(stream));
    }
    plan.directory = next;
    plan.directorySectors = static_cast<std::uint32_t>(streams.size()) / kEntriesASector + 1;
    plan.fat = next + plan.directorySectors;
    // The table also has to tell of its own sectors.
    for (std::uint32_t before = kFree; before != plan.fatSectors;) {
        before = plan.fatSectors;
        plan.difatSectors = plan.fatSectors <= kFatSectorsInHeader
                                ? 0
                                : (plan.fatSectors - kFatSectorsInHeader + kFatSectorsInDifat - 1) / kFatSectorsInDifat;
        const std::uint32_t all = plan.fat + plan.fatSectors + plan.difatSectors;
        plan.fatSectors = (all + kNumbersASector - 1) / kNumbersASector;
    }
    plan.difat = plan.fat + plan.fatSectors;
    return plan;
}

std::string header(const Plan& plan) {
    Bytes bytes;
    bytes.raw("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1").zeros(16);
    bytes.u16(0x003E).u16(3).u16(0xFFFE).u16(9).u16(6).zeros(6);
    bytes.u32(0).u32(plan.fatSectors).u32(plan.directory).u32(0);
    bytes.u32(static_cast<std::int64_t>(kSmallestStream)).u32(kEndOfChain).u32(0);
    bytes.u32(plan.difatSectors > 0 ? plan.difat : kEndOfChain).u32(plan.difatSectors);
    for (std::uint32_t i = 0; i < kFatSectorsInHeader; ++i)
        bytes.u32(i < plan.fatSectors ? plan.fat + i : kFree);
    return bytes.str();
}

std::string fat(const Plan& plan) {
    Bytes bytes;
    const auto chain = [&bytes](std::uint32_t from, std::uint32_t to) {
        for (std::uint32_t sector = from; sector < to; ++sector)
            bytes.u32(sector + 1 < to ? sector + 1 : kEndOfChain);
    };
    for (std::size_t i = 0; i < plan.starts.size(); ++i)
        chain(plan.starts[i], i + 1 < plan.starts.size() ? plan.starts[i + 1] : plan.directory);
    chain(plan.directory, plan.fat);
    for (std::uint32_t i = 0; i < plan.fatSectors; ++i)
        bytes.u32(kFatSector);
    for (std::uint32_t i = 0; i < plan.difatSectors; ++i)
        bytes.u32(kDifatSector);
    while (bytes.size() < plan.fatSectors * kSectorSize)
        bytes.u32(kFree);
    return bytes.str();
}

std::string difat(const Plan& plan) {
    Bytes bytes;
    std::uint32_t next = kFatSectorsInHeader;
    for (std::uint32_t sector = 0; sector < plan.difatSectors; ++sector) {
        for (std::uint32_t i = 0; i < kFatSectorsInDifat; ++i, ++next)
            bytes.u32(next < plan.fatSectors ? plan.fat + next : kFree);
        bytes.u32(sector + 1 < plan.difatSectors ? plan.difat + sector + 1 : kEndOfChain);
    }
    return bytes.str();
}

/// The streams' tree: where each entry's neighbours stand.
struct Tree {
    struct Links {
        std::uint32_t left = kNoEntry;
        std::uint32_t right = kNoEntry;
    };
    std::vector<Links> links; ///< by stream
    std::uint32_t top = kNoEntry;
};

/// Entries are counted from the root's; shorter names come first. Source: [MS-CFB] 2.6.4.
Tree makeTree(const std::vector<CompoundStream>& streams) {
    std::vector<std::uint32_t> order(streams.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto upper = [](std::u16string name) {
        for (char16_t& c : name)
            c = c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 0x20) : c;
        return name;
    };
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        const std::u16string first = upper(streams[a].name());
        const std::u16string second = upper(streams[b].name());
        return first.size() != second.size() ? first.size() < second.size() : first < second;
    });
    Tree tree;
    tree.links.resize(streams.size());
    // A chain to the right is a search tree too; there are never more than a handful of streams.
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 0)
            tree.top = order[i] + 1;
        else
            tree.links[order[i - 1]].right = order[i] + 1;
    }
    return tree;
}

void addEntry(Bytes& bytes, const std::u16string& name, EntryKind kind, Tree::Links links, std::uint32_t child,
              std::uint32_t start, std::uint64_t size) {
    constexpr int kBlack = 1;
    bytes.characters(name).zeros(kNameSize - 2 * name.size());
    bytes.u16(static_cast<std::int64_t>(2 * name.size() + 2)).u8(static_cast<int>(kind)).u8(kBlack);
    bytes.u32(links.left).u32(links.right).u32(child);
    if (kind == EntryKind::Root)
        for (const unsigned char byte : kDocumentClass)
            bytes.u8(byte);
    else
        bytes.zeros(16);
    bytes.zeros(4 + 8 + 8).u32(start).u64(static_cast<std::int64_t>(size));
}

std::string directory(const std::vector<CompoundStream>& streams, const Plan& plan) {
    const Tree tree = makeTree(streams);
    Bytes bytes;
    addEntry(bytes, u"Root Entry", EntryKind::Root, {}, tree.top, kEndOfChain, 0);
    for (std::size_t i = 0; i < streams.size(); ++i)
        addEntry(bytes, streams[i].name(), EntryKind::Stream, tree.links[i], kNoEntry, plan.starts[i],
                 storedSize(streams[i]));
    while (bytes.size() < plan.directorySectors * kSectorSize)
        bytes.zeros(kNameSize + 4).u32(kNoEntry).u32(kNoEntry).u32(kNoEntry).zeros(48);
    return bytes.str();
}

/// The file that is written.
class Target {
public:
    explicit Target(const std::filesystem::path& path)
        : m_path(path)
        , m_file(std::fopen(path.c_str(), "wb")) {
        if (!m_file)
            fail();
    }

    void add(std::string_view bytes) {
        if (std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) != bytes.size())
            fail();
    }

    void copy(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        std::array<char, 65536> buffer{};
        while (in.read(buffer.data(), buffer.size()) || in.gcount() > 0)
            add({buffer.data(), static_cast<std::size_t>(in.gcount())});
    }

    void close() {
        // A full disk may show only when the last bytes leave the memory.
        if (std::fclose(m_file.release()) != 0)
            fail();
    }

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    [[noreturn]] void fail() const {
        const std::error_code reason(errno, std::generic_category());
        throw Failure(FailureCode::TargetUnwritable,
                      fmt::format("{} cannot be written: {}", m_path.string(), reason.message()));
    }

    std::filesystem::path m_path;
    std::unique_ptr<std::FILE, Closer> m_file;
};

void writeStream(Target& target, const CompoundStream& stream) {
    for (const CompoundStream::Piece& piece : stream.pieces()) {
        if (piece.file.empty())
            target.add(piece.bytes);
        else
            target.copy(piece.file);
    }
    const std::uint64_t whole = sectorsFor(storedSize(stream)) * kSectorSize;
    target.add(std::string(static_cast<std::size_t>(whole - stream.size()), '\0'));
}

} // namespace

void CompoundStream::add(std::string bytes) {
    m_size += bytes.size();
    const std::uint64_t size = bytes.size();
    m_pieces.push_back({std::move(bytes), {}, size});
}

void CompoundStream::addFile(std::filesystem::path file) {
    std::error_code error;
    const std::uint64_t size = std::filesystem::file_size(file, error);
    if (error)
        throw Failure(FailureCode::Internal, fmt::format("the picture {} cannot be read", file.string()));
    m_size += size;
    m_pieces.push_back({{}, std::move(file), size});
}

void CompoundStream::append(const CompoundStream& other) {
    m_pieces.insert(m_pieces.end(), other.m_pieces.begin(), other.m_pieces.end());
    m_size += other.m_size;
}

void writeCompoundFile(const std::filesystem::path& target, const std::vector<CompoundStream>& streams) {
    const Plan plan = makePlan(streams);
    Target file(target);
    file.add(header(plan));
    for (const CompoundStream& stream : streams)
        writeStream(file, stream);
    file.add(directory(streams, plan));
    file.add(fat(plan));
    file.add(difat(plan));
    file.close();
}

} // namespace orvane::write::doc
