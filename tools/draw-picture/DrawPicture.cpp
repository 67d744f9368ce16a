// draw-picture SOURCE.svg TARGET.gif|.jpg WIDTH HEIGHT: renders a drawing to a picture file of that size on white. A
// tool of the build.

#include <Magick++.h>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <stdexcept>

namespace {

constexpr unsigned kColours = 256; ///< of a GIF
constexpr unsigned kQuality = 92;  ///< of a JPEG, out of 100

QImage drawn(const QString& source, QSize size) {
    QSvgRenderer drawing(source);
    if (!drawing.isValid() || size.isEmpty())
        throw std::runtime_error("cannot draw " + source.toStdString());
    QImage picture(size, QImage::Format_RGB888);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return picture;
}

void write(const QImage& picture, const std::string& target) {
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

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 5) {
        std::fputs("usage: draw-picture SOURCE.svg TARGET.gif|.jpg WIDTH HEIGHT\n", stderr);
        return 2;
    }
    try {
        Magick::InitializeMagick(argv[0]);
        write(drawn(QString::fromLocal8Bit(argv[1]), QSize(std::stoi(argv[3]), std::stoi(argv[4]))), argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "draw-picture: %s\n", error.what());
        return 1;
    }
    return 0;
}
