#include "FaxCoder.h"

#include "BitWriter.h"

#include <stdexcept>

namespace orvane::pictures {
namespace {

constexpr std::size_t kLongestRun = 16;
/// The codes of runs of 0 to 16 pixels. Source: ITU-T T.4, table 2.
constexpr const char* kWhiteRuns[kLongestRun + 1] = {"00110101", "000111", "0111",   "1000",   "1011",  "1100",
                                                     "1110",     "1111",   "10011",  "10100",  "00111", "01000",
                                                     "001000",   "000011", "110100", "110101", "101010"};
constexpr const char* kBlackRuns[kLongestRun + 1] = {
    "0000110111", "010",     "11",      "10",      "011",      "0011",     "0010",      "00011",     "000101",
    "000100",     "0000100", "0000101", "0000111", "00000100", "00000111", "000011000", "0000010111"};

constexpr const char* kEndOfLine = "000000000001";
constexpr const char* kPass = "0001";
constexpr const char* kHorizontal = "001";
/// A change 3 pixels left of that above it to 3 right of it. Source: ITU-T T.4, table 4.
constexpr const char* kVertical[] = {"0000010", "000010", "010", "1", "011", "000011", "0000011"};
constexpr int kVerticalReach = 3;

bool isBlack(const std::string& row, int x) {
    return x >= 0 && row[static_cast<std::size_t>(x)] == '#';
}

/// The first pixel behind `x` whose colour is not that of the pixel before it, or the row's end.
int nextChange(const std::string& row, int x) {
    const int width = static_cast<int>(row.size());
    int at = x + 1;
    while (at < width && isBlack(row, at) == isBlack(row, at - 1))
        ++at;
    return std::min(at, width);
}

void putRun(int length, bool isOfBlack, BitWriter& bits) {
    if (length > static_cast<int>(kLongestRun))
        throw std::invalid_argument("a run is too long for this coder");
    bits.put((isOfBlack ? kBlackRuns : kWhiteRuns)[length]);
}

void putOneDimensional(const std::string& row, BitWriter& bits) {
    const int width = static_cast<int>(row.size());
    bool isOfBlack = false;
    for (int x = 0; x < width; isOfBlack = !isOfBlack) {
        int end = x;
        while (end < width && isBlack(row, end) == isOfBlack)
            ++end;
        putRun(end - x, isOfBlack, bits);
        x = end;
    }
}

/// The first change above, right of `x`, to the colour that the row does not have at `x`.
int changeAbove(const std::string& above, int x, bool isOfBlack) {
    const int width = static_cast<int>(above.size());
    int at = nextChange(above, x);
    while (at < width && isBlack(above, at) == isOfBlack)
        at = nextChange(above, at);
    return at;
}

/// `above` is the row before. Source: ITU-T T.6, 2.2.
void putTwoDimensional(const std::string& row, const std::string& above, BitWriter& bits) {
    const int width = static_cast<int>(row.size());
    bool isOfBlack = false;
    for (int x = -1; x < width;) {
        int change = std::max(x, 0);
        while (change < width && isBlack(row, change) == isOfBlack)
            ++change;
        const int upper = changeAbove(above, x, isOfBlack);
        const int afterUpper = nextChange(above, upper);
        if (upper < width && afterUpper < change) {
            bits.put(kPass);
            x = afterUpper;
        } else if (std::abs(change - upper) <= kVerticalReach) {
            bits.put(kVertical[change - upper + kVerticalReach]);
            isOfBlack = !isOfBlack;
            x = change;
        } else {
            const int second = change < width ? nextChange(row, change) : width;
            bits.put(kHorizontal);
            putRun(change - std::max(x, 0), isOfBlack, bits);
            putRun(second - change, !isOfBlack, bits);
            x = second;
        }
    }
}

} // namespace

std::string codeFax(const Raster& rows, const FaxCoding& coding) {
    BitWriter bits;
    std::string above(rows.front().size(), '.');
    for (std::size_t y = 0; y < rows.size(); ++y) {
        if (coding.isByteAligned)
            bits.align();
        if (coding.hasEndOfLine)
            bits.put(kEndOfLine);
        const bool isOneDimensional = coding.k == 0 || (coding.k > 0 && y % static_cast<std::size_t>(coding.k) == 0);
        if (coding.k > 0)
            bits.put(isOneDimensional ? "1" : "0");
        if (isOneDimensional)
            putOneDimensional(rows[y], bits);
        else
            putTwoDimensional(rows[y], above, bits);
        above = rows[y];
    }
    if (coding.isByteAligned)
        bits.align();
    const int ends = !coding.hasEndOfBlock ? 0 : coding.k < 0 ? 2 : 6;
    for (int i = 0; i < ends; ++i) {
        bits.put(kEndOfLine);
        if (coding.k > 0)
            bits.put("1");
    }
    return bits.bytes();
}

} // namespace orvane::pictures
