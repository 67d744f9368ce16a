#include "platform/DefaultViewer.h"

namespace platform {

bool hasDefaultViewer(const std::string&) {
    // The system brings a viewer for its own help files and a browser; it asks the user about any other kind itself.
    return true;
}

} // namespace platform
