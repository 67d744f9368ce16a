#include "ui/form/Picture.h"

#include <QFileInfo>
#include <QPainter>

namespace {

constexpr int kIconSize = 32; ///< pixels, of a message's icon

} // namespace

Picture::Picture(QWidget* parent)
    : QWidget(parent) {}

void Picture::load(const QString& path) {
    const QIcon picture(path);
    // An icon of a missing file has no sizes.
    if (!QFileInfo::exists(path) || picture.availableSizes().isEmpty())
        return;
    m_picture = picture;
    update();
}

QSize Picture::sizeHint() const {
    return {kIconSize, kIconSize};
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_picture.paint(&painter, rect(), Qt::AlignHCenter | Qt::AlignTop);
}
