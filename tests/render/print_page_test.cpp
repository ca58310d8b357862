// The printed map page through the recording surface: the arrow's steps, the
// caption's texts, the heading's words, where the map and the list go, and the
// list's later pages.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "print_page.h"
#include "recorded_calls.h"
#include "recording_surface.h"
#include "text_pages.h"

using namespace quilmar;

using test::callsStarting;
using test::countOf;

TEST(PrintPage, NorthArrowIsSevenStepsAndAnN)
{
    RecordingSurface s;
    paintNorthArrow(s, 1000.0f);
    const std::vector<std::string> expected{
        // shaft up, head out left, tip, head out right, back in, shaft down, foot
        "#000000 line 120 1000 120 700",  "#000000 line 120 700 0 700",   "#000000 line 0 700 240 460",
        "#000000 line 240 460 480 700",   "#000000 line 480 700 360 700", "#000000 line 360 700 360 1000",
        "#000000 line 360 1000 120 1000",
        // the letter, 60 wide and 120 high inside the shaft
        "#000000 line 210 940 210 820",   "#000000 line 210 820 270 940", "#000000 line 270 940 270 820"};
    EXPECT_EQ(s.calls(), expected);
}

TEST(PrintPage, ScaleCaptionTexts)
{
    const struct { const char *scale, *autoScale; Units units; bool list; const char *caption; } cases[] = {
        {"1000:1", "AutoScale = 50", Units::Feet, true, "Scale = 1:1000 (Feet)"},
        {"200", "", Units::Meters, true, "Scale = 1:200 (Meters)"},
        {"Standard", "AutoScale = 50", Units::Feet, true, "Scale = 1: 50 (Feet)"},
        // The suffix follows the list option, not the units.
        {"Standard", "AutoScale = 50", Units::Feet, false, "Scale = 1: 50"},
        {"Maximum", "AutoScale = 7", Units::Other, true, "Scale = 1: 7"},
        {"Small", "", Units::Meters, true, "Scale = 1: (Meters)"},
        {"0", "AutoScale = 3", Units::Feet, false, "Scale = 1: 3"},
        {"1500.5", "", Units::Feet, false, "Scale = 1:1500.5"}};
    for (const auto &c : cases)
        EXPECT_EQ(scaleCaption(c.scale, c.autoScale, c.units, c.list), c.caption) << c.scale << " " << c.autoScale;
}

TEST(PrintPage, HeadingWrapsWordByWordAtPageWidthLess2400)
{
    // 12 pt on the recorder: 120 twips a character, lines of 292.5 twips.
    RecordingSurface s;
    s.setFont(kHeadingFont);
    // Ten-letter words step 1320 twips; the line ends at 11520 - 2400 = 9120, so
    // the seventh word (x = 7920, ending exactly at 9120) stays and the eighth wraps.
    std::string heading;
    for (int i = 0; i < 9; ++i)
        heading += std::string(10, char('a' + i)) + (i < 8 ? " " : "");
    const std::vector<PlacedWord> words = wrapHeading(s, kLetterPage, 1080.0f, heading);
    ASSERT_EQ(words.size(), 9u);
    EXPECT_EQ(words[6].at, (PointF{360.0f + 7920.0f, 1080.0f}));
    EXPECT_EQ(words[7].at, (PointF{360.0f, 1080.0f + 292.5f}));
    EXPECT_FLOAT_EQ(words[8].at.x, 360.0f + 1320.0f);
    EXPECT_EQ(words[0].text, "aaaaaaaaaa ");

    // Two spaces make an empty word (printed as one space); "\n" breaks the line.
    const std::vector<PlacedWord> odd = wrapHeading(s, kLetterPage, 0.0f, "a  b\nc");
    ASSERT_EQ(odd.size(), 4u);
    EXPECT_EQ(odd[1].text, " ");
    EXPECT_FLOAT_EQ(odd[2].at.x, 360.0f + 240.0f + 120.0f);
    EXPECT_EQ(odd[3].at, (PointF{360.0f, 292.5f}));

    // The test is made before every word, the first included: a first word
    // wider than the line (77 letters, 9240 twips) leaves the first line empty.
    const std::vector<PlacedWord> wide = wrapHeading(s, kLetterPage, 1080.0f, std::string(77, 'x') + " b");
    ASSERT_EQ(wide.size(), 2u);
    EXPECT_EQ(wide[0].at, (PointF{360.0f, 1080.0f + 292.5f}));
    EXPECT_EQ(wide[1].at, (PointF{360.0f, 1080.0f + 585.0f}));
}

TEST(PrintPage, LayoutPutsTheMapBelowHeadingAndCaption)
{
    RecordingSurface s;
    MapPageText text{.description = true, .referenceList = true, .heading = "AAAA BBBB", .highest = 10};
    const MapPageLayout layout = planMapPage(s, kLetterPage, text);
    // heading 1080 + 292.5; arrow tip 240 below, foot 540 below the tip
    EXPECT_FLOAT_EQ(layout.headingBottom, 1372.5f);
    EXPECT_FLOAT_EQ(layout.arrowFoot, 2152.5f);
    // caption lines of 195 * 7.8 / 8 = 190.125: two empty lines, then the caption
    EXPECT_NEAR(layout.captionTop, 2152.5 + 2 * 190.125, 0.01);
    EXPECT_NEAR(layout.mapArea.top, 2532.75 + 190.125 + 360, 0.01);
    EXPECT_FLOAT_EQ(layout.mapArea.left, 360.0f);
    EXPECT_FLOAT_EQ(layout.mapArea.width, 11520.0f - 720.0f);
    // (10 \ 2 + 2) = 7 list lines are kept at the foot of the first page
    EXPECT_TRUE(layout.listOnFirstPage);
    EXPECT_NEAR(layout.listReserved, 7 * 190.125, 0.01);
    EXPECT_NEAR(layout.listTop, 15120 - 360 - 7 * 190.125, 0.01);
    EXPECT_NEAR(layout.mapArea.top + layout.mapArea.height, layout.listTop - 360, 0.01);
    // the font is put back
    EXPECT_EQ(s.font(), TextFont{});

    // Without heading and list the arrow's tip is at the text origin and the
    // map reaches the bottom margin.
    text.description = text.referenceList = false;
    const MapPageLayout bare = planMapPage(s, kA4Page, text);
    EXPECT_TRUE(bare.heading.empty());
    EXPECT_FLOAT_EQ(bare.arrowFoot, 1080.0f + 540.0f);
    EXPECT_NEAR(bare.mapArea.top + bare.mapArea.height, kA4Page.height - 360, 0.01);
    EXPECT_FALSE(bare.listOnFirstPage || bare.listOnSecondPage);

    // The list moves to a second page when it needs more than the first keeps:
    // 44 \ 2 + 2 = 24 lines of 190.125 = 4563 > 4320; 40 \ 2 + 2 = 22 lines = 4182.75 fit.
    text.referenceList = true;
    text.highest = 40;
    EXPECT_TRUE(planMapPage(s, kLetterPage, text).listOnFirstPage);
    text.highest = 44;
    EXPECT_TRUE(planMapPage(s, kLetterPage, text).listOnSecondPage);
}

TEST(PrintPage, PaintsFigureAtTheMapAreaAndTheListInTwoColumns)
{
    const MapPageText text{.referenceList = true, .scaleCaption = "Scale = 1:100 (Feet)",
                           .listEntries = {"1  N 10", "2  E 20", "New", "3  S 30", "4  W 40"}, .highest = 10};
    const Figure figure{{{FigLine{{0, 0}, {300, 0}}, Palette::Blue, Target::Both},
                         {FigText{{-180, 0}, 0, "1 "}, Palette::Blue, Target::Printer},
                         {FigText{{300, 0}, 0, "x"}, Palette::Red, Target::Screen}}};

    RecordingSurface s, page;
    const MapPageLayout layout = planMapPage(s, kLetterPage, text);
    paintMapPage(page, kLetterPage, layout, text, figure, -1000.0f, -2000.0f);
    const std::vector<std::string> &calls = page.calls();

    // The caption in 7.8 pt at the text origin's x.
    const std::vector<std::string> caption = test::callsContaining(page, "Scale = 1:100 (Feet)");
    ASSERT_EQ(caption.size(), 1u);
    EXPECT_EQ(caption[0].rfind("#000000 text 360 ", 0), 0u) << caption[0];

    // The figure: origin so that drawing point (-1000, -2000) is the area's top-left;
    // the printer's items only (no end mark), the label where the walk put it.
    const auto at = std::find_if(calls.begin(), calls.end(), [](const std::string &c) { return c.rfind("scaleOrigin -1360 ", 0) == 0; });
    ASSERT_NE(at, calls.end());
    EXPECT_NEAR(std::stod(at->substr(18)), -2000.0 - layout.mapArea.top, 0.01);
    EXPECT_EQ(std::vector<std::string>(at + 1, at + 4),
              (std::vector<std::string>{"#000080 line 0 0 300 0", "#000080 text -180 0 0 1 ", "scaleOrigin 0 0"}));
    EXPECT_EQ(countOf(page, "#800000 text 300 0 0 x"), 0);

    // Five entries: three in the first column, two in the second at 360 + (11520 - 720) / 2 = 5760; the
    // block's first line, at the list's top 15120 - 360 - 7 x 190.125 = 13429.125, is left empty.
    const std::vector<std::string> texts = callsStarting(page, "#000000 text");
    ASSERT_GE(texts.size(), 6u);
    EXPECT_EQ(std::vector<std::string>(texts.end() - 5, texts.end()),
              (std::vector<std::string>{"#000000 text 360 13619.25 0 1  N 10", "#000000 text 360 13809.375 0 2  E 20",
                                        "#000000 text 360 13999.5 0 New", "#000000 text 5760 13619.25 0 3  S 30",
                                        "#000000 text 5760 13809.375 0 4  W 40"}));
    EXPECT_EQ(countOf(page, "newPage"), 0);
}

TEST(PrintPage, LongListGoesOverSecondAndThirdPagesUnderARule)
{
    MapPageText text{.referenceList = true, .highest = 200};
    for (int i = 1; i <= 150; ++i)
        text.listEntries.push_back(std::to_string(i) + "  N 10");
    RecordingSurface s, page;
    const MapPageLayout layout = planMapPage(s, kLetterPage, text);
    ASSERT_TRUE(layout.listOnSecondPage);
    paintMapPage(page, kLetterPage, layout, text, Figure{}, 0, 0);
    // Each list page: the rule from the text origin, the page width less 2520 long,
    // half a line below the (absent) heading; then 69 lines of two columns.
    EXPECT_EQ(countOf(page, "newPage"), 2);
    EXPECT_EQ(countOf(page, "#000000 line 360 1175.0625 9360 1175.0625"), 2);
    const std::vector<std::string> &calls = page.calls();
    const auto second = std::find(std::find(calls.begin(), calls.end(), "newPage") + 1, calls.end(), "newPage");
    ASSERT_NE(second, calls.end());
    // Entry 139 (the 2 x 69 + 1st) opens the third page.
    EXPECT_NE((second + 2)->find(" 139  N 10"), std::string::npos) << *(second + 2);
}

TEST(TextPages, BreaksPagesWhenTheNextLineWouldPassTheBottomMargin)
{
    RecordingSurface s(200.0f); // 200-twip lines at 8 pt
    // Letter: lines from 720 while y + 200 <= 15120 - 720: (14400 - 720) / 200 = 68.4 -> 68 a page.
    const std::vector<std::string> lines(150, "line");
    EXPECT_EQ(paintTextPages(s, kLetterPage, lines), 3);
    EXPECT_EQ(countOf(s, "newPage"), 2);
    EXPECT_EQ(s.calls()[1], "#000000 text 360 720 0 line");
    // 8 pt "M" is 80 twips wide: (11520 - 720) / 80 = 135 characters a line
    EXPECT_EQ(charsPerLine(s, kLetterPage), 135);
}

TEST(PrintPage, MapLargerThanTheAreaStartsAtItsTopAndLeft)
{
    const PageRect area{360, 3000, 10800, 9000};
    // 2000 wide, 12000 tall from (-1000, -6000): too tall, not too wide; a
    // screen-only item far away changes nothing
    const Figure figure{{{FigLine{{-1000, -6000}, {1000, 6000}}, Palette::Blue, Target::Both},
                         {FigLine{{-90000, -90000}, {0, 0}}, Palette::Blue, Target::Screen}}};
    const PointF tall = figureOrigin(area, figure, -5000, -7000);
    EXPECT_FLOAT_EQ(tall.x, -5000 - 360);  // centred across by the fit
    EXPECT_FLOAT_EQ(tall.y, -6000 - 3000); // top of the map at the area's top
    // an arc's box is its sweep's: the upper half of a circle of 7000 round (0, 0)
    const Figure arc{{{FigArc{{0, 0}, 7000, 0.0, 3.14159265}, Palette::Blue, Target::Both}}};
    const PointF wide = figureOrigin(area, arc, -100, -200);
    EXPECT_NEAR(wide.x, -7000 - 360, 0.01);
    EXPECT_FLOAT_EQ(wide.y, -200 - 3000); // 7000 tall fits in 9000
}
