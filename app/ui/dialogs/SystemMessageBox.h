#pragma once

#include "core/RunViews.h"

/// The desktop's own message box, over the active window.
class SystemMessageBox : public UserMessages {
public:
    void tell(Icon icon, const QString& text, const QString& title) override;
    Answer ask(const QString& question, const QString& title) override;
};
