#include "ui/form/FirstField.h"

#include <QWidget>

void focusFirstField(QWidget& window, QWidget& start) {
    if (window.focusWidget())
        return;
    for (QWidget* field = start.nextInFocusChain(); field != &start; field = field->nextInFocusChain()) {
        const bool takesFocus = (field->focusPolicy() & Qt::TabFocus) != 0;
        if (takesFocus && field->isEnabled() && field->isVisibleTo(&window))
            return field->setFocus();
    }
}
