#include "settings_file.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

#include "temp_folder.h"

using namespace quilmar;

namespace {

class Settings : public ::testing::Test {
protected:
    test::TempFolder folder;
    SettingsValues read(const std::string &content) { return readSettings(folder.write("quilmar.ini", content)); }
};

} // namespace

TEST_F(Settings, MissingFolderOrOversizedFileGivesTheDefaults)
{
    const SettingsValues s = readSettings(folder.file("none.ini"));
    EXPECT_EQ(std::tuple(s.scales, s.scaleMetric, s.scaleEnglish, s.printOptions),
              std::tuple(std::string("50;100;200;400;800;1500;2000;3000;4000"), 576.0f, 1440.0f,
                         std::array<int16_t, 5>{1, 1, 1, 0, 0}));
    EXPECT_EQ(readSettings(folder.path().string()).scales, s.scales);
    const std::string big = "[Setting]\nScales=1\n" + std::string(kMaxSettingsFileBytes, ' ');
    EXPECT_EQ(readSettingsText(big).scales, "1");
    EXPECT_EQ(read(big).scales, s.scales);
}

TEST_F(Settings, KeysAnyCaseValuesWholeLeadingNumbers)
{
    const SettingsValues s = read("[setting]\r\nSCALES =  250;abc;;0.5 \r\nscalemetric=600cm\r\nScaleEnglish=x\r\n"
                                  "[PRINTOPTIONS]\r\nframes=1\r\nBalanceGap=2.5\r\nReferenceList=0\r\n"
                                  "ReferencePoints=1\r\nReferencePoints=0\r\n");
    EXPECT_EQ(s.scales, "250;abc;;0.5");
    EXPECT_EQ(scaleItems(s.scales), (std::vector<std::string>{" 250", " 0", " 0", " .5"}));
    EXPECT_EQ(std::pair(s.scaleMetric, s.scaleEnglish), std::pair(600.0f, 0.0f));
    // PropertyDescr missing: its default; BalanceGap 2.5 rounds half to even; the first of two keys counts.
    EXPECT_EQ(s.printOptions, (std::array<int16_t, 5>{1, 0, 1, 1, 2}));
    EXPECT_TRUE(scaleItems(read("[Setting]\nScales=\n").scales).empty());
    EXPECT_EQ(scaleItems("-20;1E3;"), (std::vector<std::string>{"-20", " 1000"}));
}

// The file reader hands its bytes to the text reader: both must agree on
// every shape of file, the awkward ones included.
TEST_F(Settings, TextAndFileReadTheSame)
{
    const std::string longScales = "[Setting]\nScales=" + std::string(300, '7') + ";5\n";
    // Where scales is nothing, only that both agree.
    const struct { std::string content; std::optional<std::string> scales; } cases[] = {
        {"[Setting]\r\nScales=10;20\r\n", "10;20"},
        {std::string("[Setting]\nScales=30\0;40\nScaleMetric=9\n", 31), "30"}, // NUL ends the line's value only
        {std::string("[Set\0ting]\nScales=1\n", 20), "50;100;200;400;800;1500;2000;3000;4000"},
        {"\xEF\xBB\xBF[setting]\nscales = 60 ;70\n", "60 ;70"}, // byte-order mark; the value is all after "="
        {"[Setting]\nScales=  ;;5\n", ";;5"},
        {"[Setting]\nScales=80\nScales=90\n", "80"},
        {"[Setting]\nScales=1\n  continued\n", "1"}, // a line without "=" is no key
        {"[Setting]\nScaleMetric=1\n  Scales = 70\n", "70"}, // an indented key is a key like any other
        {"no section\nScales=5\n[Setting]\rScales=6\r", "50;100;200;400;800;1500;2000;3000;4000"},
        {"[Setting]\nScales=\n  60\n", ""}, // the first value counts, even an empty one
        {longScales, std::nullopt}};
    for (const auto &c : cases) {
        const SettingsValues fromText = readSettingsText(c.content);
        const SettingsValues fromFile = read(c.content);
        if (c.scales)
            EXPECT_EQ(fromText.scales, *c.scales) << ::testing::PrintToString(c.content);
        EXPECT_EQ(std::tuple(fromText.scales, fromText.scaleMetric, fromText.printOptions),
                  std::tuple(fromFile.scales, fromFile.scaleMetric, fromFile.printOptions))
            << ::testing::PrintToString(c.content);
    }
}
