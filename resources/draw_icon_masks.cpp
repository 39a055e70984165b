// Draws icons at build time: draw_icon_masks FOLDER NAME.svg... writes FOLDER/NAME-SIZE.mask for
// each size that the window's rail shows, one byte of opacity a pixel, line by line.
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

bool write_mask(QSvgRenderer& drawing, int size, const QString& path) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            file.putChar(static_cast<char>(qAlpha(image.pixel(x, y))));
    return file.flush();
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 2; i < argc; ++i) {
        QSvgRenderer drawing(QString::fromLocal8Bit(argv[i]));
        const QString name = QFileInfo(QString::fromLocal8Bit(argv[i])).baseName();
        for (const int size : {28, 56})
            if (!drawing.isValid() || !write_mask(drawing, size,
                                                  QStringLiteral("%1/%2-%3.mask")
                                                      .arg(QString::fromLocal8Bit(argv[1]), name)
                                                      .arg(size)))
                return 1;
    }
    return 0;
}
