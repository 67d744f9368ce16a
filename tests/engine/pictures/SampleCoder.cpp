#include "SampleCoder.h"

#include "BitWriter.h"

#include <cstdlib>
#include <stdexcept>

#include <zlib.h>

namespace orvane::pictures {

std::string packSamples(const std::vector<int>& samples, int bits, std::size_t samplesPerRow) {
    BitWriter packed;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (i % samplesPerRow == 0)
            packed.align();
        packed.put(static_cast<std::uint32_t>(samples[i]), bits);
    }
    return packed.bytes();
}

std::string codeFlate(const std::string& bytes) {
    uLongf length = compressBound(static_cast<uLong>(bytes.size()));
    std::string coded(length, '\0');
    if (compress(reinterpret_cast<Bytef*>(coded.data()), &length, reinterpret_cast<const Bytef*>(bytes.data()),
                 static_cast<uLong>(bytes.size())) != Z_OK)
        throw std::runtime_error("zlib failed");
    coded.resize(length);
    return coded;
}

std::string codeLzw(const std::string& bytes) {
    constexpr std::uint32_t kClear = 256;
    constexpr std::uint32_t kEnd = 257;
    // The table is cleared before its codes outgrow 9 bits.
    constexpr std::size_t kCodesPerTable = 200;
    BitWriter bits;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i % kCodesPerTable == 0)
            bits.put(kClear, 9);
        bits.put(static_cast<unsigned char>(bytes[i]), 9);
    }
    bits.put(kEnd, 9);
    return bits.bytes();
}

std::string codeRunLength(const std::string& bytes) {
    std::string coded;
    for (std::size_t at = 0; at < bytes.size();) {
        std::size_t run = 1;
        while (run < 128 && at + run < bytes.size() && bytes[at + run] == bytes[at])
            ++run;
        // A run of one byte is written as a piece that stands as it is.
        coded += static_cast<char>(run == 1 ? 0 : 257 - run);
        coded += bytes[at];
        at += run;
    }
    return coded + '\x80';
}

std::string filterPng(const std::string& bytes, std::size_t rowBytes, std::size_t pixelBytes,
                      const std::vector<PngFilter>& filters) {
    std::string filtered;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const std::size_t x = at % rowBytes;
        const std::size_t y = at / rowBytes;
        const PngFilter filter = filters[y % filters.size()];
        if (x == 0)
            filtered += static_cast<char>(filter);
        const auto byteAt = [&](bool isThere, std::size_t place) {
            return isThere ? static_cast<int>(static_cast<unsigned char>(bytes[place])) : 0;
        };
        const int left = byteAt(x >= pixelBytes, at - pixelBytes);
        const int above = byteAt(y > 0, at - rowBytes);
        const int corner = byteAt(x >= pixelBytes && y > 0, at - rowBytes - pixelBytes);
        const int guess = left + above - corner;
        const int ofLeft = std::abs(guess - left);
        const int ofAbove = std::abs(guess - above);
        const int ofCorner = std::abs(guess - corner);
        const int paeth = ofLeft <= ofAbove && ofLeft <= ofCorner ? left : ofAbove <= ofCorner ? above : corner;
        const int predicted[] = {0, left, above, (left + above) / 2, paeth};
        filtered += static_cast<char>(bytes[at] - predicted[static_cast<int>(filter)]);
    }
    return filtered;
}

std::string differenceTiff(const std::vector<int>& samples, int bits, std::size_t samplesPerRow,
                           std::size_t samplesPerPixel) {
    std::vector<int> differences = samples;
    for (std::size_t i = 0; i < samples.size(); ++i)
        if (i % samplesPerRow >= samplesPerPixel)
            differences[i] = (samples[i] - samples[i - samplesPerPixel]) & ((1 << bits) - 1);
    return packSamples(differences, bits, samplesPerRow);
}

} // namespace orvane::pictures
