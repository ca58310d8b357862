#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli_run.h"
#include "temp_folder.h"

using namespace quilmar;

namespace {

using test::CommandRun;

// The map file of demo sample @p n, written into @p folder.
std::string sampleFile(const test::TempFolder &folder, int n)
{
    const CommandRun r = test::runCli("sample", {std::to_string(n)});
    EXPECT_EQ(r.status, 0);
    return folder.write("sample" + std::to_string(n) + ".map", r.out);
}

CommandRun report(const Args &args) { return test::runCli("report", args); }

} // namespace

TEST(CliReport, DemoSamples)
{
    const test::TempFolder folder;
    // Worked by hand: sample 1 ends at (-96.61, 1735.99) before closing, POB
    // (0, 1000): 742.32 back N 7 28' 42'' E. Sample 4's two lots: 4000 + 509.90
    // perimeter; lot 1 adds 1,000,000, lot 2's shoelace from the first lot's
    // closing point -350,000. Sample 6 closes across 106.07, perimeter 75 + 106.07.
    // Samples 2, 3 and 5 are checked for their gap and perimeter lines. The
    // square feet carry the single-precision area sum: about seven digits.
    const char *const expected[] = {
        "\nGap = 742.32.  N 7° 28' 42'' E (17.92%)\nPerimeter = 4,142.32\n23.81 acres [1,037,108.21 sq ft]\n"
            "1037108 Square Meters [103.71 Ha]\n",
        "\nGap = 222.82.  N 7° 7' 20'' W (6.13%)\nPerimeter = 3,632.21\n19.38 acres [844,280.94 sq ft]\n"
            "844281 Square Meters [84.43 Ha]\n",
        "\nGap = 660.55.  N 15° 45' 35'' W (17.57%)\nPerimeter = 3,760.55\n20.18 acres [878,934.35 sq ft]\n"
            "878934 Square Meters [87.89 Ha]\n",
        "\nGap = 509.90.  N 78° 41' 24'' W (9.43%)\nPerimeter = 5,409.90\n14.92 acres [650,000.08 sq ft]\n"
            "650000 Square Meters [65.00 Ha]\n",
        "\nGap = 1,632.74.  N 66° 33' 15'' E (46.22%)\nPerimeter = 3,532.74\n8.49 acres [369,809.15 sq ft]\n"
            "369809 Square Meters [36.98 Ha]\n",
        "\nGap = 106.07.  S 90° 0' E (58.58%)\nPerimeter = 181.07\n0.06 acres [2,651.65 sq ft]\n"
            "2652 Square Meters [0.27 Ha]\n",
    };
    for (int sample = 1; sample <= 6; ++sample) {
        CommandRun r = report({sampleFile(folder, sample)});
        EXPECT_EQ(r.status, 0);
        EXPECT_EQ(r.out, expected[sample - 1]) << "sample " << sample;
        EXPECT_EQ(r.err, "");
    }
}

TEST(CliReport, JsonCarriesLegsPointsAndCommands)
{
    const test::TempFolder folder;
    CommandRun r = report({"--json", sampleFile(folder, 4)});
    ASSERT_EQ(r.status, 0) << r.err;
    const QJsonObject o = QJsonDocument::fromJson(QByteArray::fromStdString(r.out)).object();
    EXPECT_EQ(o["units"].toString(), "feet");
    EXPECT_EQ(o["scale"].toString(), "Standard");
    EXPECT_EQ(o["highest"].toInt(), 10);
    EXPECT_EQ(o["canvas"].toArray(), (QJsonArray{7200, 4800}));
    // Extents 2000 x 1500 on 7200 x 4800: min(3.6, 3.2) * 0.72 = 2.304 twips a foot.
    EXPECT_NEAR(o["scale_factor"].toDouble(), 2.304, 1e-6);
    // 1440 / 4.608 is 312.5 on paper; the single-precision factor is a hair
    // above 2.304 (4800 / 1500 rounds up in single), so the caption says 312.
    EXPECT_EQ(o["autoscale"].toString(), "AutoScale = 312");
    const QJsonArray legs = o["legs"].toArray();
    ASSERT_EQ(legs.size(), 12); // rows 0 to highest + 1
    EXPECT_EQ(legs[0].toObject()["direction"].toDouble(), 0.0);   // "E": N 90 E
    EXPECT_EQ(legs[1].toObject()["direction"].toDouble(), -90.0); // "N"
    EXPECT_EQ(legs[6].toObject()["tag"].toString(), "N");
    EXPECT_EQ(legs[6].toObject()["course"].toInt(), 6);
    EXPECT_EQ(legs[7].toObject()["course"].toInt(), 7);
    EXPECT_TRUE(legs[6].toObject()["direction"].isNull());
    EXPECT_EQ(legs[7].toObject()["distance"].toDouble(), 500.0);
    const QJsonArray pob = o["pob"].toArray(), end = o["end"].toArray();
    EXPECT_NEAR(pob[0].toDouble(), 1000.0, 1e-3);
    EXPECT_NEAR(pob[1].toDouble(), -500.0, 1e-3);
    EXPECT_NEAR(end[0].toDouble(), 1000.0, 1e-3); // closed back to the beginning
    const QJsonObject commands = o["commands"].toObject();
    EXPECT_EQ(commands["open"].toObject()["acresbox"].toString(), "");
    EXPECT_EQ(commands["perimeter"].toObject()["acresbox"].toString(), "Perimeter = 5,409.90");
    EXPECT_TRUE(commands["hectares"].toObject()["messages"].toArray().isEmpty());
}

TEST(CliReport, OverridesAndRefusals)
{
    const test::TempFolder folder;
    // An open corner: both area commands refuse, each with its own message line.
    const std::string open = folder.write("open.map", "N\t\t\t\t\t100\t\t\t\t\r\nE\t\t\t\t\t100\t\t\t\t\r\n~\r\n*spec=1Small\r\n");
    CommandRun r = report({open});
    // Each refusal is its own "! " line; the result line keeps the perimeter.
    EXPECT_TRUE(r.out.ends_with("gap information.\nPerimeter = 200.00\n! Before you can calculate the hectares, please "
                                "close the 141  gap.\nPerimeter = 200.00\n"));
    CommandRun j = report({"--json", "--units", "other", "--scale", "Maximum", "--canvas", "1440x1440", open});
    const QJsonObject o = QJsonDocument::fromJson(QByteArray::fromStdString(j.out)).object();
    EXPECT_EQ(o["units"].toString(), "other");
    EXPECT_EQ(o["scale"].toString(), "Maximum");
    EXPECT_NEAR(o["scale_factor"].toDouble(), 14.4 * 0.96, 1e-4); // 1440 / 100 at Maximum
    EXPECT_EQ(o["description"].toString(), "\r\n");
    const QJsonObject file = QJsonDocument::fromJson(QByteArray::fromStdString(report({"--json", open}).out)).object();
    EXPECT_EQ(file["units"].toString(), "meters");
    EXPECT_EQ(file["scale"].toString(), "Small");
}

TEST(CliReport, BadInput)
{
    const test::TempFolder folder;
    const std::string missing = folder.file("nowhere.map");
    const struct { Args args; int status; const char *errPart; } cases[] = {
        {{missing}, 1, "not found."}, {{}, 2, "no map file"}, {{"--units", "yards", missing}, 2, "--units"},
        {{"--canvas", "12by5", missing}, 2, "--canvas"}, {{"--bogus", missing}, 2, "unknown option"},
        {{"--scale", "abc", missing}, 2, "--scale must be"}, {{folder.path().string()}, 1, "Cannot read"},
    };
    for (const auto &c : cases) {
        CommandRun r = report(c.args);
        EXPECT_EQ(r.status, c.status);
        EXPECT_NE(r.err.find(c.errPart), std::string::npos) << r.err;
        EXPECT_EQ(r.out, "");
    }
}

TEST(CliSample, OnlyOneToSix)
{
    for (const char *bad : {"0", "7", "x", ""})
        EXPECT_EQ(test::runCli("sample", {bad}).status, 1) << bad;
}
