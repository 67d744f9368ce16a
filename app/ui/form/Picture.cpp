#include "ui/form/Picture.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kIconSize = 32; ///< pixels, of a message's icon

} // namespace

Picture::Picture(QWidget* parent)
    : QWidget(parent) {}

void Picture::load(const QString& path) {
    const QIcon picture(path);
    // An icon of a file that holds no picture comes to light when it is drawn.
    if (!QFileInfo::exists(path) || picture.pixmap(kIconSize).isNull())
        return;
    m_picture = picture;
    m_path = path;
    update();
}

QSize Picture::sizeHint() const {
    return {kIconSize, kIconSize};
}

void Picture::mouseReleaseEvent(QMouseEvent* event) {
    // Letting go outside the picture takes the click back.
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_picture.paint(&painter, rect(), Qt::AlignHCenter | Qt::AlignTop);
}
