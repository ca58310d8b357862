#include "settings_file.h"

#include <gtest/gtest.h>

#include "temp_folder.h"

using namespace quilmar;

namespace {

class Settings : public ::testing::Test {
protected:
    test::TempFolder folder;
    SettingsValues read(const std::string &content) { return readSettings(folder.write("quilmar.ini", content)); }
};

} // namespace

TEST_F(Settings, MissingFileGivesTheDefaults)
{
    const SettingsValues s = readSettings(folder.file("none.ini"));
    EXPECT_EQ(s.scales, "50;100;200;400;800;1500;2000;3000;4000");
    EXPECT_EQ(s.scaleMetric, 576.0f);
    EXPECT_EQ(s.scaleEnglish, 1440.0f);
    EXPECT_EQ(s.printOptions, (std::array<int16_t, 5>{1, 1, 1, 0, 0}));
    EXPECT_EQ(scaleItems(s.scales), (std::vector<std::string>{" 50", " 100", " 200", " 400", " 800", " 1500", " 2000",
                                                              " 3000", " 4000"}));
}

TEST_F(Settings, KeysAnyCaseValuesWholeLeadingNumbers)
{
    const SettingsValues s = read("[setting]\r\nSCALES =  250;abc;;0.5 \r\nscalemetric=600cm\r\nScaleEnglish=x\r\n"
                                  "[PRINTOPTIONS]\r\nframes=1\r\nBalanceGap=2.5\r\nReferenceList=0\r\n"
                                  "ReferencePoints=1\r\nReferencePoints=0\r\n");
    EXPECT_EQ(s.scales, "250;abc;;0.5");
    EXPECT_EQ(scaleItems(s.scales), (std::vector<std::string>{" 250", " 0", " 0", " .5"}));
    EXPECT_EQ(s.scaleMetric, 600.0f);
    EXPECT_EQ(s.scaleEnglish, 0.0f);
    // PropertyDescr missing: its default; BalanceGap 2.5 rounds half to even; the first of two keys counts.
    EXPECT_EQ(s.printOptions, (std::array<int16_t, 5>{1, 0, 1, 1, 2}));
}

TEST_F(Settings, ScaleListEdgeCases)
{
    EXPECT_EQ(read("[Setting]\nScales=250\n").scales, "250");
    EXPECT_TRUE(scaleItems(read("[Setting]\nScales=\n").scales).empty());
    EXPECT_EQ(scaleItems("-20;1E3;"), (std::vector<std::string>{"-20", " 1000"}));
}
