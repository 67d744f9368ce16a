#include "ui/main/DropDownPicture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QColor kSunken(0, 0, 0, 48);
constexpr int kFocusWidth = 2; ///< pixels

} // namespace

DropDownPicture::DropDownPicture(QWidget* parent)
    : Picture(parent) {
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
}

void DropDownPicture::mouseMoveEvent(QMouseEvent*) {
    setFrame(1, m_appearance);
}

void DropDownPicture::mousePressEvent(QMouseEvent*) {
    setFrame(1, 1);
}

void DropDownPicture::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space || key == Qt::Key_Down)
        emit clicked();
    else
        Picture::keyPressEvent(event);
}

void DropDownPicture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (m_appearance == 1)
        painter.fillRect(rect(), kSunken);
    if (m_borderStyle == 1 || hasFocus()) {
        const int width = hasFocus() ? kFocusWidth : 1;
        painter.setPen(QPen(Qt::white, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(width / 2, width / 2, -(width + 1) / 2, -(width + 1) / 2));
    }
    painter.end();
    Picture::paintEvent(event);
}

void DropDownPicture::setFrame(int borderStyle, int appearance) {
    m_borderStyle = borderStyle;
    m_appearance = appearance;
    update();
}
