#include "cli_run.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "temp_folder.h"

namespace quilmar {
namespace {

using test::CommandRun;
using test::runCli;

TEST(CliCalc, PlainAndJsonOutput)
{
    const struct { Args args; int status; const char *out, *err; } cases[] = {
        {{"meters2feet", "-2"}, 0, "-2 Meters = -6.562 Feet\n", ""}, // a negative answer is no option
        {{"arc", "100 49"}, 2, "", "Chord cannot be longer than 2 x radius\n"},
        {{"rods", ""}, 0, "", ""}, {{"rods", "   "}, 0, "", ""}, {{"rods", "abc"}, 0, "", ""},
        // half circle: 50 x 3.14159265 = 157.0796325
        {{"--json", "arc", "100 50"}, 0, "{\"acresbox\":\"Arc Length  = 157.0796\",\"clipboard\":\"157.0796\",\"messages\":[]}\n", ""},
        // degree sign in UTF-8, no clipboard
        {{"--json", "angle", "100 100"}, 0, "{\"acresbox\":\"Angle = 57\u00B0 17' 44.809''\",\"clipboard\":null,\"messages\":[]}\n", ""},
        {{"--json", "reciprocal", "91 0 0"}, 2, "{\"acresbox\":null,\"clipboard\":null,\"messages\":[\"Incorrect Input\"]}\n", ""},
    };
    for (const auto &c : cases) {
        const CommandRun r = runCli("calc", c.args);
        EXPECT_EQ(r.status, c.status) << c.args.back();
        EXPECT_EQ(r.out, c.out) << c.args.back();
        EXPECT_EQ(r.err, c.err) << c.args.back();
    }
}

TEST(CliCalc, UsageErrors)
{
    for (const std::vector<std::string> &args : std::vector<std::vector<std::string>>{
             {}, {"chains"}, {"--json", "chains"}, {"chains", "1", "2"}, {"bogus", "1"}}) {
        const CommandRun r = runCli("calc", args);
        EXPECT_EQ(r.status, 1);
        EXPECT_NE(r.err.find("usage: quilmar calc"), std::string::npos);
    }
}

struct CliConvert : ::testing::Test { test::TempFolder folder; };

TEST_F(CliConvert, MetersToFeetSelectsFeet)
{
    const std::string in = folder.write("in.map", "S\t\t\t\t\t100\t\t\t\tB\r\nN\t45\t\t\tE\t50\t\t20\t\t\r\n"
                                           "~Lot 7\r\n*spec=1Standard\r\n");
    const CommandRun r = runCli("convert", {"meters", in});
    ASSERT_EQ(r.status, 0) << r.err;
    // 100 x 3.281 = 328.1; 50 x 3.281 = 164.05; 20 x 3.281 = 65.62
    EXPECT_EQ(r.out.rfind("S\t\t\t\t\t328.1\t\t\t\tB\r\nN\t45\t\t\tE\t164.05\t\t65.62\t\t\r\n", 0), 0u);
    EXPECT_NE(r.out.find("~Lot 7\r\n"), std::string::npos);
    EXPECT_NE(r.out.find("*spec=0Standard\r\n"), std::string::npos);
}

TEST_F(CliConvert, FeetToMetersIntoAFile)
{
    const std::string in = folder.write("in.map", "S\t\t\t\t\t328.1\t\t\t\t\r\n~\r\n*spec=0Standard\r\n");
    const CommandRun r = runCli("convert", {"feet", in, "-o", folder.file("out.map")});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "");
    const std::string bytes = test::fileBytes(folder.file("out.map"));
    EXPECT_EQ(bytes.rfind("S\t\t\t\t\t100\t", 0), 0u); // 328.1 / 3.281
    EXPECT_NE(bytes.find("*spec=1Standard\r\n"), std::string::npos);
}

TEST_F(CliConvert, FailuresWriteNothing)
{
    const std::string bad = folder.write("bad.map", "S\t\t\t\t\t12abc\t\t\t\t\r\n~\r\n*spec=0Standard\r\n");
    CommandRun r = runCli("convert", {"chains", bad, "-o", folder.file("out.map")});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err, "quilmar convert: Type mismatch\n");
    EXPECT_FALSE(std::filesystem::exists(folder.file("out.map")));

    EXPECT_EQ(runCli("convert", {"meters"}).status, 1);
    EXPECT_EQ(runCli("convert", {"parsecs", bad}).status, 1);
    r = runCli("convert", {"meters", folder.file("none.map")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("not found"), std::string::npos);
}

} // namespace
} // namespace quilmar
