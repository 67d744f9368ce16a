#pragma once

#include <string>
#include <vector>

namespace orvane::pictures {

/// One file that an extraction wrote.
struct PictureFile {
    struct Part {
        int objectNumber = 0; ///< 0: an inline picture
        int x = 0;            ///< its place in the picture, pixels
        int y = 0;
    };
    std::string name;
    int width = 0; ///< pixels
    int height = 0;
    std::vector<int> pages;  ///< that paint it, ascending
    std::vector<Part> parts; ///< several where strips or tiles were joined
};

} // namespace orvane::pictures
