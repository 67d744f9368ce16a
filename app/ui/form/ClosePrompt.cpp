#include "ui/form/ClosePrompt.h"

#include "services/ErrorTrap.h"
#include "services/UnloadAllForms.h"

void askBeforeClosing(const ClosePrompt& prompt, const QString& formName, bool& cancel, UnloadMode unloadMode) {
    if (unloadMode != UnloadMode::ControlMenu)
        return;
    const ErrorTrap trap(formName, "Form_QueryUnload");
    trap([&] {
        const auto answer =
            prompt.messageBox.ask("Do you want to close Tavrelion-PDF to Word Converter?", kWindowTitle);
        cancel = answer == UserMessages::Answer::No;
        if (cancel)
            return;
        prompt.flags.blnCloseRequested = true;
        UnloadAllForms({}, prompt.windows);
        prompt.eventLoop.yield();
    });
}
