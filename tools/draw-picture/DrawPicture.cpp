// draw-picture SOURCE.svg TARGET.gif|.jpg WIDTH HEIGHT: renders a drawing to a picture file of that size on white.
// draw-picture SOURCE.svg TARGET.ICO SIZE...: renders it to an icon file of these sizes on nothing.
// A tool of the build.

#include "IconFile.h"

#include <Magick++.h>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <stdexcept>
#include <vector>

namespace {

constexpr unsigned kColours = 256; ///< of a GIF
constexpr unsigned kQuality = 92;  ///< of a JPEG, out of 100

QImage drawn(const QString& source, QSize size, QImage::Format format, QColor ground) {
    QSvgRenderer drawing(source);
    if (!drawing.isValid() || size.isEmpty())
        throw std::runtime_error("cannot draw " + source.toStdString());
    QImage picture(size, format);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return picture;
}

void writePicture(const QImage& picture, const std::string& target) {
    // The rows of the drawing program may be padded; those of the writer are not.
    std::string pixels;
    for (int y = 0; y < picture.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(picture.constScanLine(y)),
                      static_cast<std::size_t>(picture.width()) * 3);
    Magick::Image image(static_cast<unsigned>(picture.width()), static_cast<unsigned>(picture.height()), "RGB",
                        Magick::CharPixel, pixels.data());
    if (target.ends_with(".gif")) {
        image.quantizeDither(false); // flat areas stay flat
        image.quantizeColors(kColours);
        image.quantize();
    } else {
        image.quality(kQuality);
    }
    image.write(target);
}

void drawIcon(const QString& source, const std::string& target, const std::vector<int>& sizes) {
    std::vector<QImage> pictures;
    for (const int size : sizes)
        pictures.push_back(drawn(source, {size, size}, QImage::Format_ARGB32, Qt::transparent));
    writeIcon(pictures, QString::fromStdString(target));
}

void drawPicture(const QString& source, const std::string& target, const std::vector<int>& sizes) {
    if (sizes.size() != 2)
        throw std::runtime_error("a picture has one width and one height");
    writePicture(drawn(source, {sizes[0], sizes[1]}, QImage::Format_RGB888, Qt::white), target);
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 4) {
        std::fputs("usage: draw-picture SOURCE.svg TARGET.gif|.jpg WIDTH HEIGHT\n"
                   "       draw-picture SOURCE.svg TARGET.ICO SIZE...\n",
                   stderr);
        return 2;
    }
    try {
        Magick::InitializeMagick(argv[0]);
        const std::string target = argv[2];
        std::vector<int> sizes;
        for (int i = 3; i < argc; ++i)
            sizes.push_back(std::stoi(argv[i]));
        const auto draw = target.ends_with(".ICO") ? &drawIcon : &drawPicture;
        draw(QString::fromLocal8Bit(argv[1]), target, sizes);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "draw-picture: %s\n", error.what());
        return 1;
    }
    return 0;
}
