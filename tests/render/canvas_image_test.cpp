#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "canvas_image.h"

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
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    ASSERT_TRUE(writeFigurePng(dir.filePath("map.png"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
    const QImage back(dir.filePath("map.png"));
    ASSERT_EQ(back.size(), QSize(200, 100));
    EXPECT_EQ(back.pixelColor(50, 20), kBlue); // twip row 300 / 15

    ASSERT_TRUE(writeFigureSvg(dir.filePath("map.svg"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
    QFile file(dir.filePath("map.svg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString svg = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(svg.contains("<svg width=\"200\" height=\"100\"")) << "size not in pixels";
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 200 100\""));
    EXPECT_TRUE(svg.contains("#c0c0c0")) << "background not filled";
    EXPECT_TRUE(svg.contains("#000080") && (svg.contains("<polyline") || svg.contains("<path")));

    EXPECT_FALSE(writeFigurePng(dir.filePath("missing/map.png"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
    EXPECT_FALSE(writeFigureSvg(dir.filePath("missing/map.svg"), kTwoLegs, CanvasView{0, 0, 3000, 1500}, kCanvasGrey).ok);
}

} // namespace
