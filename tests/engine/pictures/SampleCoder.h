#pragma once

#include <string>
#include <vector>

namespace orvane::pictures {

/// Packs samples of `bits` bits; each row of `samplesPerRow` begins at a whole byte.
std::string packSamples(const std::vector<int>& samples, int bits, std::size_t samplesPerRow);

/// Compressed as a PDF's FlateDecode, LZWDecode and RunLengthDecode expand. LZW without any gain: one code a byte.
std::string codeFlate(const std::string& bytes);
std::string codeLzw(const std::string& bytes);
std::string codeRunLength(const std::string& bytes);

/// The filters of PNG, by their numbers.
enum class PngFilter { None, Sub, Up, Average, Paeth };
/// Each row with the filter in front of it. Source: PNG, 9.2.
std::string filterPng(const std::string& bytes, std::size_t rowBytes, std::size_t pixelBytes,
                      const std::vector<PngFilter>& filters);
/// Differences of samples to those one pixel before. Source: TIFF 6.0, section 14.
std::string differenceTiff(const std::vector<int>& samples, int bits, std::size_t samplesPerRow,
                           std::size_t samplesPerPixel);

} // namespace orvane::pictures
