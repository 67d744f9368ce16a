#include "ui/extract/ImageTypeList.h"

namespace image_type_list {

int positionOf(const QString& strImageFormat) {
    constexpr std::array<const char*, 10> kNames{nullptr, "PNG", "TIFF", "BMP", "JPG",
                                                 "PCX",   "PSD", "PBM",  "PNM", "PPM"};
    for (std::size_t position = 1; position < kNames.size(); ++position)
        if (strImageFormat == kNames[position])
            return static_cast<int>(position);
    return 0;
}

} // namespace image_type_list
