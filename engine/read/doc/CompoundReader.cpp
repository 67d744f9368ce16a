#include "read/doc/CompoundReader.h"

#include "read/doc/ByteView.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

constexpr std::string_view kSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::uint32_t kLastSector = 0xFFFFFFFA; ///< numbers above it mean something else
constexpr std::size_t kHeaderFatSectors = 109;
constexpr std::size_t kEntrySize = 128;
constexpr std::size_t kNumber = 4;

enum class EntryKind : std::uint32_t { Stream = 2, Root = 5 };

class Reader {
public:
    explicit Reader(std::string_view file)
        : m_file(file, "the file") {
        if (!file.starts_with(kSignature))
            throw Damage("the file is no compound file, so it is no DOC");
        const std::uint32_t shift = m_file.u16(30);
        if (shift != 9 && shift != 12)
            throw Damage(fmt::format("sectors of 2^{} bytes do not exist", shift));
        m_sectorSize = std::size_t{1} << shift;
        readFat();
    }

    std::map<std::string, std::string> streams() {
        const std::string directory = chain(m_file.u32(48));
        const ByteView entries(directory, "the directory");
        readSmallSectors(entries);
        std::map<std::string, std::string> found;
        for (std::size_t at = 0; at + kEntrySize <= entries.size(); at += kEntrySize) {
            const ByteView entry = entries.part(at, kEntrySize);
            if (entry.u8(66) != static_cast<std::uint32_t>(EntryKind::Stream))
                continue;
            const std::size_t nameSize = std::min<std::size_t>(entry.u16(64), 64);
            found[entry.text(0, nameSize < 2 ? 0 : nameSize / 2 - 1)] = contentOf(entry);
        }
        return found;
    }

private:
    ByteView sector(std::uint32_t index) const {
        return m_file.part((std::size_t{index} + 1) * m_sectorSize, m_sectorSize);
    }

    /// The table's sectors: the first are named in the head of the file, the others in sectors of their own.
    void readFat() {
        std::vector<std::uint32_t> places;
        for (std::size_t i = 0; i < kHeaderFatSectors; ++i)
            places.push_back(m_file.u32(76 + kNumber * i));
        const std::size_t mostSectors = m_file.size() / m_sectorSize + 1;
        std::size_t steps = 0;
        for (std::uint32_t at = m_file.u32(68); at <= kLastSector;) {
            if (++steps > mostSectors)
                throw Damage("the list of sectors goes in circles");
            const ByteView list = sector(at);
            for (std::size_t i = 0; i + 2 * kNumber <= m_sectorSize; i += kNumber)
                places.push_back(list.u32(i));
            at = list.u32(m_sectorSize - kNumber);
        }
        for (const std::uint32_t place : places)
            if (place <= kLastSector)
                for (std::size_t i = 0; i < m_sectorSize; i += kNumber)
                    m_fat.push_back(sector(place).u32(i));
    }

    std::string chain(std::uint32_t first) const {
        std::string bytes;
        std::size_t steps = 0;
        for (std::uint32_t at = first; at <= kLastSector; at = m_fat[at]) {
            if (at >= m_fat.size() || ++steps > m_fat.size())
                throw Damage(fmt::format("the chain of sectors from {} leads nowhere", first));
            bytes += sector(at).bytes();
        }
        return bytes;
    }

    /// Short streams share sectors, which stand in a stream of the root's.
    void readSmallSectors(const ByteView& entries) {
        if (entries.size() < kEntrySize || entries.u8(66) != static_cast<std::uint32_t>(EntryKind::Root))
            throw Damage("the directory has no root");
        m_small = chain(entries.u32(116));
        m_smallFat = chain(m_file.u32(60));
    }

    std::string contentOf(const ByteView& entry) const {
        const std::uint32_t first = entry.u32(116);
        const std::size_t size = entry.u32(120);
        const bool isSmall = size < m_file.u32(56);
        std::string bytes = isSmall ? smallChain(first, size) : chain(first);
        if (bytes.size() < size)
            throw Damage(fmt::format("a stream of {} bytes ends after {}", size, bytes.size()));
        bytes.resize(size);
        return bytes;
    }

    std::string smallChain(std::uint32_t first, std::size_t size) const {
        constexpr std::size_t kSmallSector = 64;
        const ByteView fat(m_smallFat, "the table of short sectors");
        const ByteView sectors(m_small, "the short sectors");
        std::string bytes;
        for (std::uint32_t at = first; bytes.size() < size && at <= kLastSector; at = fat.u32(kNumber * at))
            bytes += sectors.part(kSmallSector * at, kSmallSector).bytes();
        return bytes;
    }

    ByteView m_file;
    std::size_t m_sectorSize = 0;
    std::vector<std::uint32_t> m_fat;
    std::string m_small;
    std::string m_smallFat;
};

} // namespace

std::map<std::string, std::string> readCompoundFile(std::string_view file) {
    return Reader(file).streams();
}

} // namespace orvane::read::doc
