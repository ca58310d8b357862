// What the Qt surfaces put out: canvas images and their PNG and SVG files, the
// copied map bitmap, fonts in points whatever the device's dpi (the fixed-pitch
// data font), and the pages of a PDF.

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "canvas_image.h"
#include "map_bitmap.h"
#include "paged_output.h"
#include "qt_painter_surface.h"
#include "temp_folder.h"
#include "text_pages.h"

using namespace quilmar;

namespace {

const QColor kBlue(0, 0, 128), kGrey(192, 192, 192), kWhite(255, 255, 255);

// A blue leg for the screen along twip row 300 and one for the printer only
// along twip row 0, both from x 0 to 1500 twips.
const Figure kTwoLegs{{{FigLine{{0, 300}, {1500, 300}}, Palette::Blue, Target::Screen},
                       {FigLine{{0, 0}, {1500, 0}}, Palette::Blue, Target::Printer}}};

TEST(CanvasImage, PaintsScreenItemsOnTheBackgroundOfTheGivenSize)
{
    // Origin (-300, -150): the leg spans pixel columns (0 + 300)/15 = 20 to
    // (1500 + 300)/15 = 120 on row (300 + 150)/15 = 30; the printer's leg would
    // lie on row (0 + 150)/15 = 10.
    const QImage image = renderFigureImage(kTwoLegs, CanvasView{-300, -150, 3000, 1500}, kCanvasGrey);
    ASSERT_EQ(image.size(), QSize(200, 100));
    EXPECT_EQ(image.pixelColor(50, 30), kBlue);
    EXPECT_EQ(image.pixelColor(10, 30), kGrey);
    EXPECT_EQ(image.pixelColor(50, 10), kGrey);
    // The bitmap copy: white; 3001 twips need a 201st pixel, 1490 round up to 100.
    const QImage copy = renderFigureImage(Figure{}, CanvasView{0, 0, 3001, 1490}, kBitmapWhite);
    EXPECT_EQ(copy.size(), QSize(201, 100));
    EXPECT_EQ(copy.pixelColor(0, 0), kWhite);
    // Bad sizes give no image.
    EXPECT_TRUE(renderFigureImage(kTwoLegs, CanvasView{0, 0, 0, 1500}, kCanvasGrey).isNull());
    EXPECT_TRUE(renderFigureImage(kTwoLegs, CanvasView{0, 0, 3000, -1}, kCanvasGrey).isNull());
    EXPECT_TRUE(renderFigureImage(kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey, 0).isNull());
}

TEST(CanvasImage, WritesPngAndSvgFiles)
{
    const test::TempFolder dir;
    const auto path = [&dir](const char *name) { return QString::fromStdString(dir.file(name)); };
    ASSERT_TRUE(writeFigurePng(path("map.png"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
    const QImage back(path("map.png"));
    ASSERT_EQ(back.size(), QSize(200, 100));
    EXPECT_EQ(back.pixelColor(50, 20), kBlue); // twip row 300 / 15

    ASSERT_TRUE(writeFigureSvg(path("map.svg"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
    const QString svg = QString::fromStdString(test::fileBytes(dir.file("map.svg")));
    EXPECT_TRUE(svg.contains("<svg width=\"200\" height=\"100\"")) << "size not in pixels";
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 200 100\""));
    EXPECT_TRUE(svg.contains("#c0c0c0")) << "background not filled";
    EXPECT_TRUE(svg.contains("#000080") && (svg.contains("<polyline") || svg.contains("<path")));

    EXPECT_FALSE(writeFigurePng(path("missing/map.png"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
    EXPECT_FALSE(writeFigureSvg(path("missing/map.svg"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
}

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
    const test::TempFolder dir;
    const QString path = QString::fromStdString(dir.file("pages.pdf"));
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
    const QByteArray bytes = QByteArray::fromStdString(test::fileBytes(dir.file("pages.pdf")));
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

} // namespace
