// The Qt surface as a printer uses it: fonts in points whatever the device's
// dpi, the fixed-pitch data font, pages of a PDF, and the copied map bitmap.

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "map_bitmap.h"
#include "paged_output.h"
#include "qt_painter_surface.h"
#include "text_pages.h"

using namespace quilmar;

TEST(PrinterSurface, FontsKeepTheirSizeInTwipsOnEveryDevice)
{
    // Courier 12 pt: every character 0.6 em = 144 twips, on a 96-dpi image and at 600 dpi.
    for (const double dpi : {96.0, 600.0}) {
        QImage image(100, 100, QImage::Format_RGB32);
        QPainter painter(&image);
        QtPainterSurface surface(painter, DeviceMapping::forDotsPerInch(0, 0, dpi));
        surface.setFont(kDataFont);
        const float tolerance = float(1440.0 / dpi) * 10; // rounding of the pixel size, ten characters
        EXPECT_NEAR(surface.textWidth("MMMMMMMMMM"), 1440.0f, tolerance) << dpi;
        EXPECT_NEAR(surface.textWidth("iiiiiiiiii"), 1440.0f, tolerance) << dpi;
        surface.setFont(kHeadingFont);
        EXPECT_GT(surface.textWidth("MMMMMMMMMM"), surface.textWidth("iiiiiiiiii"));
        EXPECT_GT(surface.textHeight(), 240.0f); // a 12 pt line is taller than 12 pt
    }
}

TEST(PrinterSurface, PdfGetsOnePageForEachNewPage)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("pages.pdf"));
    PageSize seen;
    ASSERT_TRUE(writePdf(path, QPageSize::A4, [&](Surface &surface, PageSize page) {
        seen = page;
        surface.text({360, 720}, 0, "one");
        surface.newPage();
        surface.text({360, 720}, 0, "two");
    }));
    // A4 less a quarter inch all round, in twips (Qt rounds A4 to whole points)
    EXPECT_NEAR(seen.width, kA4Page.width, 10.0);
    EXPECT_NEAR(seen.height, kA4Page.height, 10.0);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") + bytes.count("/Type /Page "), 2)
        << "two pages";
    // An unwritable target fails and says why.
    QString error;
    EXPECT_FALSE(writePdf(QStringLiteral("/no-such-folder/x.pdf"), QPageSize::Letter, [](Surface &, PageSize) {}, &error));
    EXPECT_FALSE(error.isEmpty());
}

TEST(MapBitmap, TwiceTheCanvasOnWhite)
{
    const Figure figure{{{FigLine{{0, 0}, {1500, 0}}, Palette::Blue, Target::Screen}}};
    // a doubled 7200 x 4800 canvas: 960 x 640 pixels
    const QImage image = mapBitmap(figure, CanvasView{-150, -150, 14400, 9600});
    ASSERT_EQ(image.size(), QSize(960, 640));
    EXPECT_EQ(image.pixelColor(500, 500), QColor(255, 255, 255));
    EXPECT_EQ(image.pixelColor(50, 10), QColor(0, 0, 128));
    EXPECT_TRUE(mapBitmap(figure, CanvasView{0, 0, 0, 9600}).isNull());
}
