#pragma once

#include <QString>

#include <array>

/// The list of image formats of the extraction wizard.
namespace image_type_list {

/// The option buttons whose captions make the rows, in the order of the list. There is none for optPSD.
inline constexpr std::array<const char*, 9> kRows{
    "optSameSourceImages", "optPNG", "optTIFF", "optBMP", "optJPG", "optPCX", "optPBM", "optPNM", "optPPM"};

/// The position that is selected for a stored format name, compared exactly; 0 for any other text.
///
/// It counts a row for PSD, which the list does not have, so that the names from PBM on come back one row later: PBM as
/// the PNM row, PNM as the PPM row, and PPM as a position that does not exist. The list and these numbers must stay as
/// they are: what users have chosen is stored by the name that the row shows.
int positionOf(const QString& strImageFormat);

} // namespace image_type_list
