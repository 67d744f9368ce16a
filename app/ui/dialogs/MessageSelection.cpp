#include "ui/dialogs/MessageSelection.h"

#include "i18n/Controls.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>

namespace {

QString textOf(const QWidget& control) {
    if (const auto* box = qobject_cast<const QPlainTextEdit*>(&control))
        return box->toPlainText();
    return captionOf(control);
}

} // namespace

void showOnlyText(QWidget& messageWindow, const QString& controlName) {
    messageWindow.setAccessibleDescription({});
    for (QWidget* control : controlsOf(messageWindow)) {
        const ControlKind kind = kindOf(*control);
        if (kind != ControlKind::TextBox && kind != ControlKind::Label)
            continue;
        const bool isWanted = control->objectName() == controlName;
        control->setVisible(isWanted);
        if (isWanted) // a screen reader reads it when the window opens
            messageWindow.setAccessibleDescription(textOf(*control).simplified());
    }
}
