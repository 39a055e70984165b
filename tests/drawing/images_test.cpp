// The shipped pictures.
#include "drawing_fixture.h"

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

namespace {

TEST(images, every_drawing_renders_and_every_gif_has_its_size) {
    const QString folders[] = {QStringLiteral(":/kestrom/images"),
                               QStringLiteral(":/kestrom/icons")};
    for (const QString& folder : folders) {
        const QFileInfoList drawings = QDir(folder).entryInfoList({QStringLiteral("*.svg")});
        EXPECT_FALSE(drawings.isEmpty());
        for (const QFileInfo& info : drawings) {
            QSvgRenderer drawing(info.filePath());
            ASSERT_TRUE(drawing.isValid()) << info.fileName().toStdString();
            QImage image(drawing.defaultSize(), QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            drawing.render(&painter);
            painter.end();
            QImage blank = image.copy();
            blank.fill(Qt::transparent);
            EXPECT_NE(image, blank) << info.fileName().toStdString();
            const QImage gif(folder + QLatin1Char('/') + info.completeBaseName() +
                             QStringLiteral(".gif"));
            if (!gif.isNull()) {
                EXPECT_EQ(gif.size(), drawing.defaultSize());
            }
        }
    }
}

TEST(images, the_named_pictures_are_there) {
    const bundle resources;
    for (const char* name :
         {"start.gif", "stop.gif", "chk_on.gif", "chk_off.gif", "gauge_empty_no_numbers.gif"})
        EXPECT_FALSE(QImage(QString::fromStdString(resources.image_path(name))).isNull()) << name;
}

// The dial's marks: at the scale's ends and at its middle, seen from the needle's centre.
TEST(images, the_dials_marks_stand_where_the_needle_points) {
    const bundle resources;
    const QImage dial(QString::fromStdString(resources.image_path("gauge_empty_no_numbers.gif")));
    ASSERT_EQ(dial.size(), QSize(364, 286));
    const double degrees[] = {220, 194, 168, 142, 116, 90, 64, 38, 12, -14, -40};
    for (const double mark : degrees) {
        const double angle = mark * 3.14159265358979 / 180;
        const QColor found =
            pixel_at(dial, 182 + std::cos(angle) * 134, 104 + std::sin(angle) * 134);
        EXPECT_GT(found.lightness(), 120) << mark;
        const QColor beside = pixel_at(dial, 182 + std::cos(angle + 0.045) * 128,
                                       104 + std::sin(angle + 0.045) * 128);
        EXPECT_LT(beside.lightness(), 60) << mark;
    }
}

} // namespace
