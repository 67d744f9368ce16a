#include "platform/DefaultViewer.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace platform {

bool hasDefaultViewer(const std::string& mimeType) {
    // The type goes into a command line, so nothing but what a type is made of may pass.
    const bool isPlain = std::all_of(mimeType.begin(), mimeType.end(), [](unsigned char character) {
        return std::isalnum(character) || std::string("/.+-").find(static_cast<char>(character)) != std::string::npos;
    });
    if (mimeType.empty() || !isPlain)
        return false;
    FILE* answer = popen(("xdg-mime query default " + mimeType + " 2>/dev/null").c_str(), "r");
    if (!answer)
        return false;
    const bool isNamed = std::fgetc(answer) != EOF;
    pclose(answer);
    return isNamed;
}

} // namespace platform
