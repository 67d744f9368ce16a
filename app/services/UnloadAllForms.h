#pragma once

#include <QString>

#include <memory>
#include <vector>

/// A window that can be unloaded by the program itself.
class LoadedWindow {
public:
    virtual ~LoadedWindow() = default;

    /// Unloads the window; it may refuse.
    virtual void unload() = 0;
};

/// The application's collection of loaded windows.
class LoadedWindows {
public:
    virtual ~LoadedWindows() = default;

    /// Those that are loaded now, in the order of loading. Owns: each stays alive while it is held.
    virtual std::vector<std::shared_ptr<LoadedWindow>> loadedWindows() const = 0;
};

/// Unloads each loaded window. The question whether to close was asked by the window that calls this. The text is not
/// used.
void UnloadAllForms(const QString& notUsed, const LoadedWindows& windows);
