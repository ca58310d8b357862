#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine_fixture.h"

using namespace quilmar;

namespace {

using test::Row;
using test::straight;
using Fixture = test::DrawnEngine;

// The square feet of an acres text: "0.40 acres [17,353.98 sq ft]" -> 17353.98.
double squareFeet(std::string text)
{
    std::erase(text, ',');
    return std::stod(text.substr(text.find('[') + 1));
}

const Row kBegin = test::tagRow("B"), kClose = test::tagRow("C");

} // namespace

TEST(Engine, ResultTextsOfHandWorkedTraverses)
{
    struct Case { const char *what; std::vector<Row> rows; const char *gap, *perimeter, *acres, *hectares; };
    const Case cases[] = {
        // 100 x 100 square from a bare "B" row; the float walk misses by a hair.
        {"square", {kBegin, straight("N", "100"), straight("E", "100"), straight("S", "100"), straight("W", "100")},
         "Gap = 0.0 (0.00%)", "Perimeter = 400.00", "0.23 acres [10,000.00 sq ft]", "10000 Square Meters [1.00 Ha]"},
        // Counter-clockwise too: north and south both step a hair west (the
        // cosine of -90 and 90 degrees held as single radians is -4.37e-8).
        {"square counter-clockwise", {kBegin, straight("N", "100"), straight("W", "100"), straight("S", "100"), straight("E", "100")},
         "Gap = 0.0 (0.00%)", "Perimeter = 400.00", "0.23 acres [10,000.00 sq ft]", "10000 Square Meters [1.00 Ha]"},
        // Ends 0.5 short of the start: within 1 unit the area is computed, the
        // open remainder closing through the beginning: still 10,000. (The
        // bearing of so short a gap is the float walk's noise: not checked.)
        {"0.5 short", {kBegin, straight("N", "100"), straight("E", "100"), straight("S", "100"), straight("W", "99.5")},
         nullptr, "Perimeter = 399.50", "0.23 acres [10,000.00 sq ft]", "10000 Square Meters [1.00 Ha]"},
        // Open: the end lies 100 E and 100 N of the start, so back is S 45 W over 141.42 of 200.
        {"open corner", {straight("N", "100"), straight("E", "100")}, "Gap = 141.42.  S 45° 0' W (70.71%)",
         "Perimeter = 200.00", nullptr, nullptr},
        // atan(30 / 100) = 16.69924 degrees = 16 41' 57''; 104.40 of 130 is 80.31%.
        {"open with seconds", {straight("N", "100"), straight("E", "30")}, "Gap = 104.40.  S 16° 41' 57'' W (80.31%)",
         "Perimeter = 130.00", nullptr, nullptr},
        // Closed by a curve of radius 100 bending left over the 141.42 chord: the
        // triangle's 5000 less the segment 7853.98 - 5000; the gap is the one
        // before the closing leg.
        {"curved close", {kBegin, straight("E", "100"), straight("S", "100"), {"", "", "", "", "", "", "", "100", "L", "C"}},
         "Gap = 141.42.  N 45° 0' W (39.60%)", "Perimeter = 357.08", "0.05 acres [2,146.02 sq ft]",
         "2146 Square Meters [0.21 Ha]"},
        // Bending right the segment is added: 5000 + 2853.98.
        {"curved close right", {kBegin, straight("E", "100"), straight("S", "100"), {"", "", "", "", "", "", "", "100", "R", "C"}},
         "Gap = 141.42.  N 45° 0' W (39.60%)", "Perimeter = 357.08", "0.18 acres [7,853.98 sq ft]",
         "7854 Square Meters [0.79 Ha]"},
        // East 100, a tangent quarter circle of radius 100 to the right, west 190,
        // closed straight: trapezoid 9500 + quarter disc 7853.98; perimeter
        // 100 + 157.08 + 190 + 100.50.
        // The last course stops 10 short, so the gap is N 5 42' 38'' W over 100.50.
        {"tangent curve", {kBegin, straight("E", "100"), {"", "", "", "", "", "157.0796", "", "100", "R", ""}, straight("W", "190"), kClose},
         "Gap = 100.50.  N 5° 42' 38'' W (18.35%)", "Perimeter = 547.58", "0.40 acres [17,353.98 sq ft]",
         "17354 Square Meters [1.74 Ha]"},
        // The same quarter circle given by its chord and bearing, then by chord and arc.
        {"curve by chord", {kBegin, straight("E", "100"), {"S", "45", "", "", "E", "", "141.4214", "100", "R", ""}, straight("W", "190"), kClose},
         "Gap = 100.50.  N 5° 42' 38'' W (18.35%)", "Perimeter = 547.58", "~17353.98", "17354 Square Meters [1.74 Ha]"},
        {"curve by chord and arc", {kBegin, straight("E", "100"), {"S", "45", "", "", "E", "157.0796", "141.4214", "100", "R", ""}, straight("W", "190"), kClose},
         "Gap = 100.50.  N 5° 42' 38'' W (18.35%)", "Perimeter = 547.58", "~17353.98", "17354 Square Meters [1.74 Ha]"},
    };
    for (const Case &c : cases) {
        Fixture f{c.rows};
        EXPECT_EQ(f.engine.acresbox(), "") << c.what;
        f.engine.mnuGap_Click();
        if (c.gap) {
            EXPECT_EQ(f.engine.acresbox(), c.gap) << c.what;
        }
        f.engine.mnuPeri_Click();
        EXPECT_EQ(f.engine.acresbox(), c.perimeter) << c.what;
        if (c.acres) {
            f.engine.mnuAcres_Click();
            if (c.acres[0] == '~') // a typed chord rounded to 4 places: compare the square feet
                EXPECT_NEAR(squareFeet(f.engine.acresbox()), std::stod(c.acres + 1), 0.02) << c.what;
            else
                EXPECT_EQ(f.engine.acresbox(), c.acres) << c.what;
            f.engine.mnuHectares_Click();
            EXPECT_EQ(f.engine.acresbox(), c.hectares) << c.what;
        }
        EXPECT_EQ(f.prompter.texts(), std::vector<std::string>{}) << c.what;
    }
}

TEST(Engine, EmptyTableClosesExactly)
{
    Fixture f{};
    f.engine.mnuGap_Click();
    EXPECT_EQ(f.engine.acresbox(), "Gap = 0");
    // An empty table fits 1 x 1: the smaller side times 0.72, centred on (0, 0).
    EXPECT_FLOAT_EQ(f.engine.scaleFactor(), 3456.0f);
    EXPECT_FLOAT_EQ(f.engine.canvasView().scaleLeft, -1872.0f);
    EXPECT_FLOAT_EQ(f.engine.canvasView().scaleTop, -672.0f);
}

TEST(Engine, AreaCommandsRefuseAnOpenTraverse)
{
    Fixture f{straight("N", "100"), straight("E", "100")};
    f.engine.mnuPeri_Click();
    f.engine.mnuAcres_Click();
    f.engine.mnuHectares_Click();
    EXPECT_EQ(f.prompter.texts(), (std::vector<std::string>{"Before you can calculate the acreage, please close the "
                                                            "gap.  Click on Calc Gap button to see gap information.",
                                                            "Before you can calculate the hectares, please close the 141  gap."}));
    EXPECT_EQ(f.engine.acresbox(), "Perimeter = 200.00"); // left as it was
}

TEST(Engine, ModesAreCarriedAsTheWindowCarriesThem)
{
    Fixture f{kBegin, straight("N", "100"), straight("E", "100"), straight("S", "100"), straight("W", "100")};
    f.engine.mnuGap_Click();
    // The gap command leaves the perimeter mode on: a redraw adds up the perimeter.
    EXPECT_GT(f.engine.redraw().perimeterSum, 0.0);
    f.engine.mnuPeri_Click();
    EXPECT_EQ(f.engine.redraw().perimeterSum, 0.0);
    f.engine.mnuAcres_Click();
    EXPECT_EQ(f.engine.redraw().areaSum, 0.0f); // the area mode ends with its command
    f.engine.redraw(); // a plain redraw empties the result line
    EXPECT_EQ(f.engine.acresbox(), "");
    EXPECT_EQ(f.engine.imperialText(), "0.00 acres [0.00 sq ft]");
    EXPECT_EQ(f.engine.metricText(), " Square Meters [0.00 Ha]");
}

TEST(Engine, MessagesOfABadCurveAndABadNumber)
{
    Fixture f{{"N", "", "", "", "", "", "120", "50", "L", ""}};
    EXPECT_EQ(f.prompter.texts(), (std::vector<std::string>{"Error in calc of gap", "Error in curve."}));
    EXPECT_EQ(f.engine.lastDraw().error, "Error in curve.");

    // A bearing beyond single range faults the conversion itself.
    Fixture g{{"N", "1e39", "", "", "E", "100", "", "", "", ""}};
    EXPECT_EQ(g.prompter.texts(), (std::vector<std::string>{"6.  Error drawing map (mindraw)"}));

    // A distance beyond single range first fails the fit, then the walk, and the
    // area texts then divide 0 by a scale factor that never got set.
    Fixture h{{"N", "", "", "", "E", "1e39", "", "", "", ""}};
    EXPECT_EQ(h.prompter.texts(), (std::vector<std::string>{"Error in rescaling", "Error in drawing map (drawmap)",
                                                            "6.  Error drawing map (mindraw)"}));
}

TEST(Engine, ZeroCanvasFaultsAreReportedNotCrashed)
{
    ScriptedDialogs prompter;
    Engine engine(prompter);
    engine.setCanvasSize(0, 0);
    engine.editTable().at(0, ColNS) = "N";
    engine.editTable().at(0, ColDistance) = "100";
    engine.redraw();
    EXPECT_EQ(prompter.texts(),
              (std::vector<std::string>{"Error in drawing map (drawmap)", "6.  Error drawing map (mindraw)"}));
    engine.mnuGap_Click();
    EXPECT_EQ(prompter.texts().back(), "Overflow");
}

TEST(Engine, FigureMarksTheBeginningAndTheEnd)
{
    Fixture f{straight("N", "100"), {"E", "", "", "", "", "100", "", "", "", "B"}};
    int circles = 0, redMarks = 0;
    for (const FigureItem &item : f.engine.figure().items) {
        circles += std::holds_alternative<FigCircle>(item.shape);
        if (auto t = std::get_if<FigText>(&item.shape); t && item.colour == Palette::Red) {
            ++redMarks;
            EXPECT_EQ(t->text, "x");
            EXPECT_NEAR(t->at.x, f.engine.state().pen.x - 36.0f, 1e-3);
            EXPECT_NEAR(t->at.y, f.engine.state().pen.y - 112.0f, 1e-3);
        }
    }
    EXPECT_EQ(circles, 1);
    EXPECT_EQ(redMarks, 1);
    // Fit: extents 100 x 100 on 7200 x 4800 -> 48 * 0.72 twips a foot.
    EXPECT_FLOAT_EQ(f.engine.scaleFactor(), 34.56f);
    EXPECT_EQ(f.engine.autoscalebox(), "AutoScale = 21"); // 1440 / 69.12 = 20.83
}

// Guards the reuse of each row's cosine and sine between draws: after an edit
// that turns every later course, a redraw must match a fresh engine's draw.
TEST(Engine, RedrawAfterAnEditMatchesAFreshDraw)
{
    const auto rows = [](const char *deg) {
        return std::vector<Row>{kBegin, {"N", deg, "", "", "E", "100", "", "", "", ""}, {"+", "40", "", "", "", "80", "", "", "", ""},
                                {"", "", "", "", "", "60", "", "50", "R", ""}, straight("S", "50")};
    };
    Fixture edited{rows("30")};
    edited.engine.editTable().at(1, ColDeg) = Cell(std::string("35"));
    edited.engine.redraw();
    Fixture fresh{rows("35")};
    EXPECT_EQ(edited.engine.state().pen, fresh.engine.state().pen);
    EXPECT_EQ(edited.engine.figure().items.size(), fresh.engine.figure().items.size());
    EXPECT_EQ(edited.engine.canvasView().scaleLeft, fresh.engine.canvasView().scaleLeft);
}
