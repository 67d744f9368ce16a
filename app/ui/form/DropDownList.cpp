#include "ui/form/DropDownList.h"

#include <QPainter>

DropDownList::DropDownList(QWidget* parent)
    : QComboBox(parent) {
    // With a text for "nothing selected", the first item that is added does not select itself.
    setPlaceholderText(" ");
    connect(this, &QComboBox::currentIndexChanged, this, [this](int position) {
        if (position >= 0)
            emit itemSelected(position);
    });
}

void DropDownList::setListIndex(int position) {
    if (position < count())
        setCurrentIndex(position);
}

/// The product's style leaves the arrow out, so that it can be drawn in the colour of the text on every desktop.
void DropDownList::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    constexpr double kWidth = 8; // pixels
    constexpr double kRightMargin = 12;
    const QPointF tip(width() - kRightMargin - kWidth / 2, height() / 2.0 + kWidth / 4);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text), 1.75,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF{tip + QPointF(-kWidth / 2, -kWidth / 2), tip, tip + QPointF(kWidth / 2, -kWidth / 2)});
}
