#include "IconFile.h"

#include <QBuffer>
#include <QDataStream>
#include <QSaveFile>

#include <stdexcept>

namespace {

constexpr int kLargest = 255; ///< pixels of a side that one byte holds
constexpr quint16 kIcon = 1;  ///< kind of the file; 2 would be a pointer
constexpr quint16 kPlanes = 1;
constexpr quint16 kBitsPerPixel = 32;
constexpr qsizetype kHeaderSize = 6;
constexpr qsizetype kEntrySize = 16;

QByteArray pngOf(const QImage& picture) {
    if (picture.width() != picture.height() || picture.width() < 1 || picture.width() > kLargest)
        throw std::runtime_error("a picture of an icon is a square of 1 to 255 pixels");
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        throw std::runtime_error("cannot write a PNG");
    return png;
}

} // namespace

void writeIcon(const std::vector<QImage>& pictures, const QString& path) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("cannot write " + path.toStdString());
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << kIcon << static_cast<quint16>(pictures.size());
    QByteArray pngs;
    const qsizetype start = kHeaderSize + kEntrySize * static_cast<qsizetype>(pictures.size());
    for (const QImage& picture : pictures) {
        const QByteArray png = pngOf(picture);
        const auto side = static_cast<quint8>(picture.width());
        constexpr quint8 kNoPalette = 0;
        constexpr quint8 kReserved = 0;
        out << side << side << kNoPalette << kReserved << kPlanes << kBitsPerPixel << static_cast<quint32>(png.size())
            << static_cast<quint32>(start + pngs.size());
        pngs += png;
    }
    file.write(pngs);
    if (!file.commit())
        throw std::runtime_error("cannot write " + path.toStdString());
}
