#pragma once

#include "core/RunViews.h"
#include "core/System.h"
#include "core/UnloadMode.h"
#include "records/SharedRecords.h"

class LoadedWindows;

/// What the question before closing reaches.
struct ClosePrompt {
    RunFlags& flags;
    UserMessages& messageBox;
    EventLoop& eventLoop;
    const LoadedWindows& windows;
};

/// Form_QueryUnload of the pages and the options window: when the user closes one, asks whether to close the program.
/// No keeps the window (`cancel`) and every field as it was; Yes requests the stop of the run and unloads all windows.
/// Errors: logged under `formName`.
void askBeforeClosing(const ClosePrompt& prompt, const QString& formName, bool& cancel, UnloadMode unloadMode);
