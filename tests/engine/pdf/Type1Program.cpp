#include "engine/pdf/Type1Program.h"

#include <array>
#include <cstdint>

namespace orvane::tests {
namespace {

constexpr std::uint16_t kProgramKey = 55665;
constexpr std::uint16_t kCharstringKey = 4330;

/// Source: Adobe Type 1 Font Format, 7.3.
std::string encrypted(const std::string& plain, std::uint16_t key) {
    std::string out;
    for (const char c : std::string(4, '\0') + plain) {
        const auto cipher = static_cast<std::uint8_t>(static_cast<std::uint8_t>(c) ^ (key >> 8));
        key = static_cast<std::uint16_t>((cipher + key) * 52845U + 22719U);
        out += static_cast<char>(cipher);
    }
    return out;
}

enum class Command : char { RLineTo = 5, RRCurveTo = 8, ClosePath = 9, HSbw = 13, EndChar = 14, RMoveTo = 21 };

class Charstring {
public:
    void add(int first, int second, Command command) {
        number(first);
        number(second);
        add(command);
    }
    void addCurve(const std::array<int, 6>& steps) {
        for (const int step : steps)
            number(step);
        add(Command::RRCurveTo);
    }
    void add(Command command) { m_bytes += static_cast<char>(command); }
    const std::string& bytes() const { return m_bytes; }

private:
    void number(int value) {
        m_bytes += '\xFF';
        for (int shift = 24; shift >= 0; shift -= 8)
            m_bytes += static_cast<char>(static_cast<unsigned>(value) >> shift & 0xFFU);
    }
    std::string m_bytes;
};

std::string charstringOf(const std::vector<Polygon>& polygons, const std::vector<Disk>& disks) {
    Charstring string;
    string.add(0, 600, Command::HSbw);
    int x = 0, y = 0;
    for (const Polygon& polygon : polygons) {
        bool isFirst = true;
        for (const auto& [toX, toY] : polygon) {
            string.add(toX - x, toY - y, isFirst ? Command::RMoveTo : Command::RLineTo);
            x = toX;
            y = toY;
            isFirst = false;
        }
        string.add(Command::ClosePath);
    }
    for (const Disk& disk : disks) {
        const int r = disk.radius, bend = static_cast<int>(r * 0.5523);
        string.add(disk.x + r - x, disk.y - y, Command::RMoveTo);
        string.addCurve({0, bend, bend - r, r - bend, -bend, 0});
        string.addCurve({-bend, 0, bend - r, bend - r, 0, -bend});
        string.addCurve({0, -bend, r - bend, bend - r, bend, 0});
        string.addCurve({bend, 0, r - bend, r - bend, 0, bend});
        string.add(Command::ClosePath);
        x = disk.x + r;
        y = disk.y;
    }
    string.add(Command::EndChar);
    return string.bytes();
}

} // namespace

std::string type1Program(const std::vector<Type1Glyph>& glyphs, std::optional<int> embeddingBits) {
    std::string charstrings;
    const auto addGlyph = [&](const std::string& name, const std::vector<Polygon>& polygons,
                              const std::vector<Disk>& disks) {
        const std::string code = encrypted(charstringOf(polygons, disks), kCharstringKey);
        charstrings += "/" + name + " " + std::to_string(code.size()) + " RD " + code + " ND\n";
    };
    addGlyph(".notdef", {}, {});
    for (const Type1Glyph& glyph : glyphs)
        addGlyph(glyph.name, glyph.polygons, glyph.disks);
    const std::string rights = embeddingBits ? "/FontInfo 1 dict dup begin\n/FSType " + std::to_string(*embeddingBits) +
                                                   " def\nend readonly def\n"
                                             : "";
    const std::string clear = "%!PS-AdobeFont-1.0: Made 001.000\n12 dict begin\n" + rights +
                              "/FontName /Made def\n/PaintType 0 def\n/FontType 1 def\n"
                              "/FontMatrix [0.001 0 0 0.001 0 0] readonly def\n/Encoding StandardEncoding def\n"
                              "/FontBBox {0 -200 1000 800} readonly def\ncurrentdict end\ncurrentfile eexec\n";
    const std::string hidden =
        "dup /Private 8 dict dup begin\n/RD {string currentfile exch readstring pop} executeonly def\n"
        "/ND {noaccess def} executeonly def\n/BlueValues [] def\n/password 5839 def\n"
        "2 index /CharStrings " +
        std::to_string(glyphs.size() + 1) + " dict dup begin\n" + charstrings +
        "end\nend\nreadonly put\nnoaccess put\ndup /FontName get exch definefont pop\nmark currentfile closefile\n";
    return clear + encrypted(hidden, kProgramKey) + "\n" + std::string(512, '0') + "\ncleartomark\n";
}

} // namespace orvane::tests
