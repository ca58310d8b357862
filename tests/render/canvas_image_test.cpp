#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "canvas_image.h"

namespace quilmar {
namespace {

constexpr Rgb kBlue{0, 0, 128};

Rgb pixel(const QImage &image, int x, int y)
{
    const QColor c = image.pixelColor(x, y);
    return {uint8_t(c.red()), uint8_t(c.green()), uint8_t(c.blue())};
}

// A blue leg for the screen along twip row 300 and one for the printer only
// along twip row 0, both from x 0 to 1500 twips.
Figure twoLegs()
{
    Figure f;
    f.items.push_back({FigLine{{0, 300}, {1500, 300}}, Palette::Blue, Target::Screen});
    f.items.push_back({FigLine{{0, 0}, {1500, 0}}, Palette::Blue, Target::Printer});
    return f;
}

TEST(CanvasImage, PaintsScreenItemsOnTheBackground)
{
    // Origin (-300, -150): the leg spans pixel columns (0 + 300)/15 = 20 to
    // (1500 + 300)/15 = 120 on pixel row (300 + 150)/15 = 30; the printer's leg
    // would lie on row (0 + 150)/15 = 10.
    const QImage image = renderFigureImage(twoLegs(), -300, -150, 3000, 1500, kCanvasGrey);
    ASSERT_EQ(image.size(), QSize(200, 100));
    EXPECT_EQ(pixel(image, 50, 30), kBlue);
    EXPECT_EQ(pixel(image, 50, 10), kCanvasGrey); // printer item left out
    EXPECT_EQ(pixel(image, 10, 30), kCanvasGrey); // left of where the leg starts
    EXPECT_EQ(pixel(image, 199, 99), kCanvasGrey);
}

TEST(CanvasImage, BitmapCopyHasAWhiteBackgroundAndRoundsSizesUp)
{
    // 3001 twips need a 201st pixel; 1490 twips 100 pixels (99.3 rounded up).
    const QImage image = renderFigureImage(Figure{}, 0, 0, 3001, 1490, kBitmapWhite);
    EXPECT_EQ(image.size(), QSize(201, 100));
    EXPECT_EQ(pixel(image, 0, 0), kBitmapWhite);
}

TEST(CanvasImage, BadSizesGiveNoImage)
{
    EXPECT_TRUE(renderFigureImage(twoLegs(), 0, 0, 0, 1500, kCanvasGrey).isNull());
    EXPECT_TRUE(renderFigureImage(twoLegs(), 0, 0, 3000, -1, kCanvasGrey).isNull());
    EXPECT_TRUE(renderFigureImage(twoLegs(), 0, 0, 3000, 1500, kCanvasGrey, 0).isNull());
    EXPECT_FALSE(writeFigureSvg(QDir::tempPath() + "/never.svg", twoLegs(), 0, 0, 0, 0, kCanvasGrey));
}

TEST(CanvasImage, PngFileHoldsThePicture)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("map.png");
    ASSERT_TRUE(writeFigurePng(path, twoLegs(), 0, 0, 3000, 1500, kCanvasGrey));
    const QImage back(path);
    ASSERT_EQ(back.size(), QSize(200, 100));
    EXPECT_EQ(pixel(back, 50, 20), kBlue); // twip row 300 / 15
    EXPECT_EQ(pixel(back, 50, 50), kCanvasGrey);
    EXPECT_FALSE(writeFigurePng(dir.filePath("missing/map.png"), twoLegs(), 0, 0, 3000, 1500, kCanvasGrey));
}

TEST(CanvasImage, SvgFileHasThePixelSizeAndDrawsTheLeg)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("map.svg");
    ASSERT_TRUE(writeFigureSvg(path, twoLegs(), 0, 0, 3000, 1500, kCanvasGrey));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString svg = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(svg.contains("<svg"));
    EXPECT_TRUE(svg.contains("<svg width=\"200\" height=\"100\"")) << "size not in pixels";
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 200 100\""));
    EXPECT_TRUE(svg.contains("#c0c0c0")) << "background not filled";
    EXPECT_TRUE(svg.contains("#000080")) << "leg colour missing";
    EXPECT_TRUE(svg.contains("<path") || svg.contains("<polyline") || svg.contains("<line"));
    EXPECT_FALSE(writeFigureSvg(dir.filePath("missing/map.svg"), twoLegs(), 0, 0, 3000, 1500, kCanvasGrey));
}

} // namespace
} // namespace quilmar
