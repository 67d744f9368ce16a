#include "services/UnloadAllForms.h"

void UnloadAllForms(const QString&, const LoadedWindows& windows) {
    // Unloading one window can load or unload others, so the walk is over those that were there at its start.
    for (const auto& window : windows.loadedWindows())
        window->unload();
}
