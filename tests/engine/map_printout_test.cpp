// The map page and the data printout as the engine prints them, recorded.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "engine_fixture.h"
#include "map_printout.h"
#include "recorded_calls.h"

using namespace quilmar;

namespace {

using test::Row;
using test::straight;

// Printed with "Lot 7" as the heading.
struct Printed : test::DrawnEngine {
    Printed(std::initializer_list<Row> rows, const char *scale = "Standard") : DrawnEngine(rows, scale, "Lot 7") {}
};

// N 100, E 100, S 100, W 90: a square that misses its start by 10 feet.
const std::initializer_list<Row> kOpenSquare{straight("N", "100"), straight("E", "100"), straight("S", "100"),
                                              straight("W", "90")};

struct Line { double x1, y1, x2, y2; };

// The map's lines in page twips (the recorder keeps drawing coordinates and the
// origin moves; this puts them back on the page).
std::vector<Line> mapLines(const RecordingSurface &s)
{
    std::vector<Line> lines;
    double left = 0, top = 0;
    for (const std::string &c : s.calls()) {
        std::istringstream in(c);
        std::string head, kind;
        in >> head;
        if (head == "scaleOrigin") {
            in >> left >> top;
            continue;
        }
        in >> kind;
        if (head == "#000080" && kind == "line") {
            Line l;
            in >> l.x1 >> l.y1 >> l.x2 >> l.y2;
            // the empty rows up to `highest` draw lines of no length
            if (l.x1 != l.x2 || l.y1 != l.y2)
                lines.push_back({l.x1 - left, l.y1 - top, l.x2 - left, l.y2 - top});
        }
    }
    return lines;
}

} // namespace

// Each option alone, from the defaults (reference points on, balance gap off).
TEST(MapPrintout, ReferenceLabelsAndBalancedGapFollowTheirOptions)
{
    const struct { int16_t PrintOptions::*option; int16_t value; std::size_t labels; bool closed; } cases[] = {
        {&PrintOptions::balanceGap, 0, 4, false}, {&PrintOptions::balanceGap, 1, 4, true},
        {&PrintOptions::referencePoints, 0, 0, false}};
    for (const auto &c : cases) {
        Printed p(kOpenSquare);
        PrintOptions options = p.engine.printOptions();
        options.*c.option = c.value;
        p.engine.setPrintOptions(options);
        RecordingSurface page;
        EXPECT_EQ(printMapPage(p.engine, page, kLetterPage), "");
        // the four legs' labels "1 " to "4 ", each left of its leg's start
        EXPECT_EQ(test::callsContaining(page, "#000080 text").size(), c.labels);
        const std::vector<Line> lines = mapLines(page);
        ASSERT_EQ(lines.size(), 4u);
        // open, the figure misses its start by 10 feet at the printed factor
        EXPECT_NEAR(lines.back().x2 - lines.front().x1, c.closed ? 0.0 : 10.0 * p.engine.scaleFactor(), 0.05);
        EXPECT_NEAR(lines.back().y2 - lines.front().y1, 0.0, 0.05);
    }
}

TEST(MapPrintout, CaptionRepeatsTheScaleOrTheWindowsAutoScale)
{
    // A numeric scale prints at its own factor and says so; a size level
    // prints the window's AutoScale number, whatever the page's fit.
    {
        Printed p(kOpenSquare, "1000:1");
        RecordingSurface page;
        printMapPage(p.engine, page, kLetterPage);
        EXPECT_EQ(test::callsContaining(page, "Scale = 1:1000 (Feet)").size(), 1u);
        EXPECT_FLOAT_EQ(p.engine.scaleFactor(), 1.44f);
        const std::vector<Line> lines = mapLines(page);
        EXPECT_NEAR(std::fabs(lines[0].y2 - lines[0].y1), 144.0, 0.01);
    }
    Printed p(kOpenSquare, "Standard");
    const std::string window = p.engine.autoscalebox();
    ASSERT_EQ(window.rfind("AutoScale = ", 0), 0u) << window;
    RecordingSurface page;
    printMapPage(p.engine, page, kLetterPage, 2);
    const std::string caption = "Scale = 1: " + window.substr(12) + " (Feet)";
    EXPECT_EQ(test::callsContaining(page, caption).size(), 2u) << caption;
    EXPECT_EQ(p.engine.autoscalebox(), window);
}

TEST(MapPrintout, MapLandsInsideTheMarginsBelowTheCaption)
{
    for (const PageSize size : {kLetterPage, kA4Page}) {
        for (const char *scale : {"Minimum", "Standard", "Maximum"}) {
            Printed p(kOpenSquare, scale);
            RecordingSurface probe;
            MapPageText text;
            text.description = text.referenceList = true;
            text.heading = "Lot 7";
            const MapPageLayout layout = planMapPage(probe, size, text);
            RecordingSurface page;
            printMapPage(p.engine, page, size);
            for (const Line &l : mapLines(page)) {
                for (double x : {l.x1, l.x2}) {
                    EXPECT_GE(x, 360.0 - 0.01) << scale;
                    EXPECT_LE(x, size.width - 360.0 + 0.01) << scale;
                }
                for (double y : {l.y1, l.y2}) {
                    EXPECT_GE(y, layout.captionTop + 190.0) << scale;
                    EXPECT_LE(y, layout.listTop) << scale;
                }
            }
        }
    }
}

TEST(MapPrintout, CopiesRepeatThePageAndStateIsPutBack)
{
    Printed p(kOpenSquare);
    PrintOptions options = p.engine.printOptions();
    options.referenceList = 0;
    p.engine.setPrintOptions(options);
    RecordingSurface page;
    page.setFont({"Times", 10.0f, true});
    const float width = p.engine.canvasView().width;
    printMapPage(p.engine, page, kLetterPage, 2);
    EXPECT_EQ(test::countOf(page, "newPage"), 1);
    EXPECT_EQ(test::callsContaining(page, "Scale = 1: ").size(), 2u);
    EXPECT_EQ(test::callsContaining(page, "text 360 1080 0 Lot ").size(), 2u);
    // no list, so no units suffix
    EXPECT_TRUE(test::callsContaining(page, "(Feet)").empty());
    EXPECT_EQ(page.calls().back(), "font Times 10 bold");
    EXPECT_FLOAT_EQ(p.engine.canvasView().width, width);
}

TEST(MapPrintout, ReferenceListHasLabelsAndNewRows)
{
    Printed p({straight("N", "100"), test::tagRow("N"), straight("E", "50")});
    EXPECT_EQ(referenceListEntries(p.engine), (std::vector<std::string>{"1  N 100", "New", "2  E 50"}));
}

TEST(DataPrintout, FixedPitchListingEndsWithEndAndPutsTheFontBack)
{
    Printed p(kOpenSquare);
    RecordingSurface page;
    printDataPages(p.engine, page, kLetterPage);
    const std::vector<std::string> &calls = page.calls();
    EXPECT_EQ(calls.front(), "font Courier 12 plain");
    EXPECT_EQ(calls.back(), "font Arial 8 plain");
    EXPECT_FALSE(test::callsContaining(page, " 0 Lot 7").empty());
    EXPECT_EQ(calls[calls.size() - 2].substr(calls[calls.size() - 2].size() - 4), " end");
}

TEST(CopyMap, DrawsOnTheDoubledCanvasAndRestoresIt)
{
    Printed p(kOpenSquare);
    const float factor = p.engine.scaleFactor();
    const CanvasDraw draw = drawDoubleSize(p.engine);
    EXPECT_FLOAT_EQ(draw.view.width, 14400.0f);
    EXPECT_FLOAT_EQ(draw.view.height, 9600.0f);
    EXPECT_EQ(draw.figure.items.size(), p.engine.figure().items.size());
    EXPECT_FLOAT_EQ(p.engine.canvasView().width, 7200.0f);
    EXPECT_FLOAT_EQ(p.engine.scaleFactor(), factor);
}
