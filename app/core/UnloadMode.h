#pragma once

/// Why a window is asked to unload. The numbers are the product's.
enum class UnloadMode {
    ControlMenu = 0,    ///< the user's close box
    Code = 1,           ///< the program itself
    SystemShutdown = 2, ///< the desktop session ends
};
