#include "ui/form/LinkLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>

LinkLabel::LinkLabel(QWidget* parent)
    : QLabel(parent) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setBuddy(this); // a label listens to the access key in its text only for a buddy
}

bool LinkLabel::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut)
        return QLabel::event(event);
    buddy()->setFocus(Qt::ShortcutFocusReason);
    emit clicked();
    return true;
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    // Letting go outside the label takes the click back.
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}
